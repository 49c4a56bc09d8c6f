#pragma once

#include <QDateTime>
#include <QThread>

// The program's one view of the date and the time of day, and its one way of letting time
// pass. Tests set both and never wait.
class Clock {
public:
    virtual ~Clock() = default;
    virtual QDateTime now() const = 0;
    // Lets the given time pass, doing nothing meanwhile.
    virtual void sleep(int milliseconds) {
        if (milliseconds > 0) {
            QThread::msleep(static_cast<unsigned long>(milliseconds));
        }
    }
};

class SystemClock final : public Clock {
public:
    QDateTime now() const override { return QDateTime::currentDateTime(); }
};
