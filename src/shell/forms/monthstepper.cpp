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
    // Tab reaches it, so that the month can be stepped from the keyboard.
    setFocusPolicy(Qt::StrongFocus);
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

// An arrow or page key is one step, the up ones forward; a key held down steps once. The
// keys that would run the bar to its ends step nothing.
void MonthStepper::keyPressEvent(QKeyEvent* event) {
    int step = 0;
    switch (event->key()) {
        case Qt::Key_Up:
        case Qt::Key_PageUp:
            step = -1;
            break;
        case Qt::Key_Down:
        case Qt::Key_PageDown:
            step = 1;
            break;
        default:
            QWidget::keyPressEvent(event);
            return;
    }
    event->accept();
    if (!event->isAutoRepeat()) {
        setValue(value() + step);
        emit changed();
    }
}
