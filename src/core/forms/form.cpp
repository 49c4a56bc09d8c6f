#include "core/forms/form.h"

#include "core/forms/facewindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPushButton>
#include <QShowEvent>

Form::Form(FaceWindow& window) : QWidget(nullptr), window_(window) {
    window.addFace(this);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        if (now != nullptr && isAncestorOf(now)) {
            lastFocus_ = now;
        }
    });
}

void Form::load() {
    if (!loaded_) {
        loaded_ = true;
        Form_Load();
    }
}

bool Form::unload() {
    if (!Form_Unload()) {
        return false;
    }
    loaded_ = false;
    hide();
    return true;
}

void Form::askForRoom() {
    window_.growTo(sizeHint());
}

// Only the program's own showing and hiding count; the window system's minimising and
// restoring of the whole window is no change of face.
void Form::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!event->spontaneous()) {
        load();
        window_.faceShown(this);
    }
}

void Form::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    if (!event->spontaneous()) {
        window_.faceHidden();
    }
}

void Form::closeEvent(QCloseEvent* event) {
    if (Form_Unload()) {
        loaded_ = false;
        event->accept();
    } else {
        event->ignore();
    }
}

void Form::takeFocus() {
    const auto canTake = [this](const QWidget* control) {
        return control != nullptr && (control == this || isAncestorOf(control)) &&
               control->isVisible() && control->isEnabled();
    };
    if (canTake(window()->focusWidget())) {
        return;
    }
    QWidget* control = lastFocus_;
    for (QWidget* next = nextInFocusChain(); !canTake(control) && next != this;
         next = next->nextInFocusChain()) {
        if ((next->focusPolicy() & Qt::TabFocus) != 0) {
            control = next;
        }
    }
    if (canTake(control)) {
        control->setFocus(Qt::OtherFocusReason);
    }
}

void Form::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        auto* target = qobject_cast<QPushButton*>(focusWidget());
        if (target == nullptr) {
            for (QPushButton* button : findChildren<QPushButton*>()) {
                if (button->isDefault() && button->isVisible() && button->isEnabled()) {
                    target = button;
                    break;
                }
            }
        }
        if (target != nullptr && target->isEnabled()) {
            target->click();
            return;
        }
    }
    QWidget::keyPressEvent(event);
}
