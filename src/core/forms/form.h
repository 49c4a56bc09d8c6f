#pragma once

#include <QPointer>
#include <QWidget>

class FaceWindow;

// A form of the program: one face of the program's one window. A form is made with the
// window and lies hidden until it is shown. Showing a form brings it on top, loading it first
// when it is not loaded (Form_Load). The form on top is the active one: it is activated
// (Form_Activate) each time it comes on top, also when a form above it leaves, and
// deactivated (Form_Deactivate) when another comes above it or it leaves. Unloading it, or
// closing it by the window's close box while it is on top, asks Form_Unload, which may keep
// it; a form unloaded leaves the screen and loads afresh when it is shown again.
class Form : public QWidget {
    Q_OBJECT
    friend class FaceWindow;

public:
    explicit Form(FaceWindow& window);

    bool isLoaded() const { return loaded_; }
    // Loads the form unless it is loaded.
    void load();
    // False when Form_Unload kept the form.
    bool unload();
    // Unless the form or one of its controls has the focus: the focus goes back to the control
    // of this form that had it last, if that can still take it, else to the form's first
    // control that Tab reaches. The window gives it the focus so each time it comes on top.
    void takeFocus();

protected:
    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    virtual void Form_Deactivate() {}
    // False keeps the form loaded and on the screen.
    virtual bool Form_Unload() { return true; }

    // The window grows toward the room this face asks for, as far as its screen allows.
    void askForRoom();

    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    // Return and Enter press the push button that has the focus, else the default button.
    void keyPressEvent(QKeyEvent* event) override;

private:
    FaceWindow& window_;
    bool loaded_ = false;
    QPointer<QWidget> lastFocus_;
};

// The main window as the other forms reach it: it takes the screen back when they close,
// and its busy face ends only when it is told.
class MainForm : public Form {
    Q_OBJECT

public:
    using Form::Form;
    virtual void modLeaveBusyState() = 0;
};
