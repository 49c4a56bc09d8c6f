#pragma once

#include <QTimer>
#include <QWidget>

// The splash that stands on the screen while the start-up works. It hides itself when its
// time is over; the start-up waits for that.
class frmCredit : public QWidget {
    Q_OBJECT

public:
    explicit frmCredit(int lengthMs, QWidget* parent = nullptr);

private:
    QTimer timSplash;
};
