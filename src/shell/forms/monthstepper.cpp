#include "shell/forms/monthstepper.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

namespace {

// The stepper only ever looks at the difference between two of its values, so it starts in
// the middle of a range that no user will step to the end of.
constexpr int kRange = 100000;

// One notch of a mouse wheel, in eighths of a degree.
constexpr int kNotch = 120;

}  // namespace

MonthStepper::MonthStepper(QWidget* parent) : QScrollBar(Qt::Vertical, parent) {
    setRange(-kRange, kRange);
    setValue(0);
    setSingleStep(1);
    // A click between the arrows is one step too.
    setPageStep(1);
    setFixedHeight(2 * sizeHint().width() + 4);
}

void MonthStepper::mousePressEvent(QMouseEvent* event) {
    valueAtPress_ = value();
    QScrollBar::mousePressEvent(event);
    // A held button steps once: the bar's own repeat would go on behind any question.
    setRepeatAction(SliderNoAction);
}

void MonthStepper::mouseReleaseEvent(QMouseEvent* event) {
    QScrollBar::mouseReleaseEvent(event);
    if (value() != valueAtPress_) {
        valueAtPress_ = value();
        emit changed();
    }
}

void MonthStepper::wheelEvent(QWheelEvent* event) {
    wheelTurn_ += event->angleDelta().y();
    event->accept();
    if (wheelTurn_ >= kNotch || wheelTurn_ <= -kNotch) {
        // Turned away from the user, the wheel moves as the up arrow does.
        const int before = value();
        setValue(before + (wheelTurn_ > 0 ? -1 : 1));
        wheelTurn_ = 0;
        if (value() != before) {
            emit changed();
        }
    }
}

void MonthStepper::keyPressEvent(QKeyEvent* event) {
    const int before = value();
    QScrollBar::keyPressEvent(event);
    if (value() != before) {
        emit changed();
    }
}
