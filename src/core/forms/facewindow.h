#pragma once

#include <QWidget>

#include <vector>

class Form;
class QGridLayout;
class QScrollArea;

// The program's one top-level window; every form is a face of it. The faces lie on top of
// each other, the one shown last on top, so that a form that is shown takes the place, the
// size and the screen of the form before it, and the window carries the caption of the face
// on top. The window is as large as its largest face asks, never larger than the screen's
// available area; on a smaller screen the faces scroll, so that every control can be reached.
class FaceWindow : public QWidget {
    Q_OBJECT

public:
    FaceWindow();
    // The faces go first, while they can still reach this window.
    ~FaceWindow() override;

    // Makes the form a face of this window, hidden until it is shown.
    void addFace(Form* face);
    // Sizes the window for its faces, within the available area of its screen.
    void fitFaces();
    // A face came on the screen: it goes on top and becomes the active one.
    void faceShown(Form* face);
    // A face left the screen: the one under it, if any, becomes the active one.
    void faceHidden();

protected:
    // The window's close box closes the face on top.
    void closeEvent(QCloseEvent* event) override;

private:
    // The visible face on top, or null.
    Form* topFace() const;
    // Deactivates the face that was on top and activates the one that is.
    void activateTopFace();
    void showTopCaption();

    QScrollArea* scroll_;
    QWidget* stage_;
    QGridLayout* faces_;
    Form* active_ = nullptr;
    bool closing_ = false;
};
