#pragma once

#include <QTimer>
#include <QWidget>

class QKeyEvent;
class QLabel;
class QPaintEvent;
class QShowEvent;

// The splash that stands on the screen while the start-up works: the logo in colour, then
// embossed in its plate, over the program's name. It hides itself when its time is over, and
// the start-up waits for that. A key pressed with Shift alone held, or Shift itself, cuts it
// short and asks for the opening of a configuration dump to be offered in the Help menu for
// this run: a tool for those who look into a user's problem, which a user does not see.
class frmCredit : public QWidget {
    Q_OBJECT

public:
    // lengthMs is the splash's whole length; its fifteen ticks share it.
    explicit frmCredit(int lengthMs, QWidget* parent = nullptr);

    // Whether the key on the splash asked for the opening of a dump.
    bool openDumpOffered() const { return openDumpOffered_; }

    void timSplash_Timer();

    QTimer timSplash;
    QWidget* picBlank;
    QLabel* picLogoNormal;
    QLabel* picLogoEmbossed;

protected:
    // Form_KeyDown.
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void showScene();

    int ticks_ = 0;
    bool openDumpOffered_ = false;
};
