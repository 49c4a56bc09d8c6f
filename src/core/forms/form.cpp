#include "core/forms/form.h"

#include "core/forms/facewindow.h"

#include <QCloseEvent>
#include <QShowEvent>

Form::Form(FaceWindow& window) : QWidget(nullptr), window_(window) {
    window.addFace(this);
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
