#include "core/forms/formkit.h"

#include <QApplication>
#include <QLineEdit>

void showHourglass() {
    QApplication::setOverrideCursor(Qt::WaitCursor);
}

void showNormalPointer() {
    while (QApplication::overrideCursor() != nullptr) {
        QApplication::restoreOverrideCursor();
    }
}

void doEvents() {
    QCoreApplication::processEvents();
}

void modSelectAllText(QLineEdit* box) {
    box->setSelection(0, static_cast<int>(box->text().size()));
}

void modRemoveMinMaxFromSystemMenu(QWidget* form) {
    form->setWindowFlag(Qt::WindowMinimizeButtonHint, false);
    form->setWindowFlag(Qt::WindowMaximizeButtonHint, false);
}
