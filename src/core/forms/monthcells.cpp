#include "core/forms/monthcells.h"

#include "core/forms/formkit.h"

#include <QEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace {

constexpr int kSixthRowStart = MonthCells::kColumns * (MonthCells::kRows - 1);

// The frame of the cell that has the focus, inside the cell's own border.
void markFocus(QWidget& cell) {
    QPainter painter(&cell);
    painter.setPen(QPen(cell.palette().color(cell.foregroundRole()), 2, Qt::DotLine));
    painter.drawRect(QRectF(cell.rect()).adjusted(3, 3, -3, -3));
}

}  // namespace

MonthCells::MonthCells(QGridLayout* grid, int firstRow, const std::array<QWidget*, kCells>& cells,
                       std::function<void(int)> press)
    : QObject(grid), grid_(grid), firstRow_(firstRow), cells_(cells), press_(std::move(press)) {
    for (int i = 0; i < kCells; ++i) {
        QWidget* cell = cells_[i];
        // Hidden cells keep their place, so the days stand in their weekday's column.
        retainSizeWhenHidden(cell);
        cell->installEventFilter(this);
        grid_->addWidget(cell, firstRow_ + i / kColumns, i % kColumns);
    }
    for (int row = 0; row < kRows; ++row) {
        grid_->setRowStretch(firstRow_ + row, 1);
    }
    setCurrent(0);
}

void MonthCells::showMonth(int firstCell, int days) {
    for (int i = 0; i < kCells; ++i) {
        cells_[i]->setVisible(i >= firstCell && i < firstCell + days);
    }
    // The sixth row gives its room away in a month of five weeks.
    const bool sixRows = firstCell + days > kSixthRowStart;
    for (int i = kSixthRowStart; i < kCells; ++i) {
        QSizePolicy policy = cells_[i]->sizePolicy();
        policy.setRetainSizeWhenHidden(sixRows);
        cells_[i]->setSizePolicy(policy);
    }
    grid_->setRowStretch(firstRow_ + kRows - 1, sixRows ? 1 : 0);
    if (!isDay(current_)) {
        setCurrent(std::clamp(firstCell, 0, kCells - 1));
    }
}

// Only one cell is a stop of the Tab key; the others take the focus by a click or an arrow.
void MonthCells::setCurrent(int index) {
    current_ = index;
    for (int i = 0; i < kCells; ++i) {
        cells_[i]->setFocusPolicy(i == index ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

int MonthCells::indexOf(const QObject* watched) const {
    for (int i = 0; i < kCells; ++i) {
        if (cells_[i] == watched) {
            return i;
        }
    }
    return -1;
}

bool MonthCells::isDay(int index) const {
    return index >= 0 && index < kCells && !cells_[index]->isHidden();
}

int MonthCells::stepFrom(int index, int key) const {
    switch (key) {
        case Qt::Key_Left:
            return index - 1;
        case Qt::Key_Right:
            return index + 1;
        case Qt::Key_Up:
            return index - kColumns;
        case Qt::Key_Down:
            return index + kColumns;
        case Qt::Key_Home:
            for (int i = 0; i < kCells; ++i) {
                if (isDay(i)) {
                    return i;
                }
            }
            return -1;
        case Qt::Key_End:
            for (int i = kCells - 1; i >= 0; --i) {
                if (isDay(i)) {
                    return i;
                }
            }
            return -1;
        default:
            return -1;
    }
}

bool MonthCells::eventFilter(QObject* watched, QEvent* event) {
    const int index = indexOf(watched);
    if (index < 0) {
        return QObject::eventFilter(watched, event);
    }
    QWidget* cell = cells_[index];
    switch (event->type()) {
        case QEvent::FocusIn:
            setCurrent(index);
            cell->update();
            break;
        case QEvent::FocusOut:
            cell->update();
            break;
        case QEvent::Paint:
            if (cell->hasFocus()) {
                // The cell paints itself first; the mark goes over it.
                static_cast<QObject*>(cell)->event(event);
                markFocus(*cell);
                return true;
            }
            break;
        case QEvent::KeyPress: {
            const auto* key = static_cast<QKeyEvent*>(event);
            if (key->modifiers() & ~Qt::KeypadModifier) {
                break;
            }
            if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter ||
                key->key() == Qt::Key_Space) {
                // A held key presses the day once.
                if (!key->isAutoRepeat()) {
                    press_(index);
                }
                return true;
            }
            const int to = stepFrom(index, key->key());
            if (to == -1) {
                break;
            }
            if (isDay(to)) {
                cells_[to]->setFocus(Qt::OtherFocusReason);
            }
            return true;
        }
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
}
