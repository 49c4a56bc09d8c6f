// The second road to the forms: the view/edit list with its button, and the Edit menu.
// The list offers what the workspace holds; each entry and each menu item opens its form,
// which brings the window back to life when it closes.

#include "core/forms/formkit.h"
#include "shell/forms/frmMain.h"

#include <QAction>
#include <QComboBox>
#include <QPushButton>

std::optional<frmMain::ViewForm> frmMain::viewFormNamed(const QString& item) {
    if (item == QStringLiteral("Fonts & printer setup")) {
        return ViewForm::FontsAndPrinter;
    }
    if (item == QStringLiteral("All constraints")) {
        return ViewForm::AllConstraints;
    }
    if (item == QStringLiteral("Schedule")) {
        return ViewForm::Schedule;
    }
    if (item == QStringLiteral("Daily shifts & times")) {
        return ViewForm::DailyShifts;
    }
    return std::nullopt;
}

void frmMain::connectViewEdit() {
    connect(cmdViewEdit, &QPushButton::clicked, this, [this] { cmdViewEdit_Click(); });
    connect(mnuESchedule, &QAction::triggered, this, [this] { openFromMenu(ViewForm::Schedule); });
    connect(mnuEShifts, &QAction::triggered, this, [this] { openFromMenu(ViewForm::DailyShifts); });
    connect(mnuEConstraints, &QAction::triggered, this,
            [this] { openFromMenu(ViewForm::AllConstraints); });
    connect(mnuEFonts, &QAction::triggered, this,
            [this] { openFromMenu(ViewForm::FontsAndPrinter); });
}

void frmMain::cmdViewEdit_Click() {
    showHourglass();
    const std::optional<ViewForm> form = viewFormNamed(cmbViewEdit->currentText());
    if (!form || !viewFormReady(*form)) {
        showNormalPointer();
        return;
    }
    modEnterBusyState();
    doEvents();
    showViewForm(*form);
}

void frmMain::openFromMenu(ViewForm form) {
    showHourglass();
    if (viewFormReady(form)) {
        modEnterBusyState();
        doEvents();
        showViewForm(form);
    }
    showNormalPointer();
}

// The daily shifts, constraints and printer forms join as they are built; until then their
// entries leave the window as it is.
bool frmMain::viewFormReady(ViewForm form) {
    return form == ViewForm::Schedule;
}

void frmMain::showViewForm(ViewForm form) {
    if (form == ViewForm::Schedule) {
        showWholeCalendar();
    }
}
