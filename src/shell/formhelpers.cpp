#include "shell/formhelpers.h"

#include <QApplication>
#include <QLineEdit>

void modHourglass() {
    QApplication::setOverrideCursor(Qt::WaitCursor);
}

void modNormalPointer() {
    while (QApplication::overrideCursor() != nullptr) {
        QApplication::restoreOverrideCursor();
    }
}

void modDoEvents() {
    QCoreApplication::processEvents();
}

void modSelectAllText(QLineEdit* box) {
    box->setSelection(0, static_cast<int>(box->text().size()));
}

void modRemoveMinMaxFromSystemMenu(QWidget* form) {
    form->setWindowFlag(Qt::WindowMinimizeButtonHint, false);
    form->setWindowFlag(Qt::WindowMaximizeButtonHint, false);
}
