#pragma once

#include "core/forms/form.h"

class QFrame;
class QLabel;
struct Context;
struct Workspace;

// The About box, a face of the program's window in the main window's place: the program's
// icon, name, maker, version and copyright. A click anywhere on it, or a key, closes it,
// except "e" or "E", which start the credit roll; the roll runs until a click or another key
// closes the box.
class frmAbout : public Form {
    Q_OBJECT

public:
    frmAbout(Workspace& ws, Context& ctx, MainForm& main, FaceWindow& window);

    void Form_Click();
    void Form_KeyPress(QChar key);
    void modEasterEgg();

    QFrame* fraMain;
    QLabel* imgIcon;
    QLabel* labTitle;
    QLabel* labCompany;
    QLabel* labVersion;
    QLabel* labCopyright;
    QWidget* picArrow;
    QFrame* picCredits;
    QLabel* labCredits;

protected:
    void Form_Load() override;
    void Form_Activate() override;
    bool Form_Unload() override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    Workspace& ws_;
    Context& ctx_;
    MainForm& main_;
    bool rolling_ = false;
};
