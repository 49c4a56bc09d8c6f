// The main window's events that hand a command to its flow: the File menu and the two roads
// out, the month stepper, the view/edit list and the Edit menu, the Generate menu, and the
// print boxes and engine list that the Workspace mirrors.

#include "constraints/forms/frmBoth.h"
#include "constraints/forms/frmViewDay.h"
#include "core/forms/formkit.h"
#include "core/model/workspace.h"
#include "core/services/context.h"
#include "export/calendarfiles.h"
#include "generation/forms/frmWholeCalendar.h"
#include "printing/forms/frmPSetup.h"
#include "shell/filecommands.h"
#include "shell/forms/frmMain.h"
#include "shell/forms/monthstepper.h"
#include "shell/monthchange.h"
#include "shell/shutdown.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>

namespace {

int valueOf(int checkState) {
    switch (checkState) {
        case Qt::Checked:
            return 1;
        case Qt::PartiallyChecked:
            return 2;
        default:
            return 0;
    }
}

}  // namespace

void frmMain::connectCommands() {
    connect(lstAgents, &QListWidget::currentRowChanged, this, [this] { lstAgents_Click(); });
    connect(lstAgents, &QListWidget::itemDoubleClicked, this, [this] { lstAgents_DblClick(); });
    connect(vscDate, &MonthStepper::changed, this, [this] { vscDate_Change(); });

    connect(mnuFile, &QMenu::aboutToShow, this, [this] { mnuFile_Click(); });
    connect(mnuFNew, &QAction::triggered, this, [this] { mnuFNew_Click(); });
    connect(mnuFOpen, &QAction::triggered, this, [this] { mnuFOpen_Click(); });
    connect(mnuFSaveAs, &QAction::triggered, this, [this] { mnuFSaveAs_Click(); });
    connect(mnuFExit, &QAction::triggered, this, [this] { mnuFExit_Click(); });
    connect(mnuFSaveIcs, &QAction::triggered, this, [this] { mnuFSaveIcs_Click(); });

    connect(cmdViewEdit, &QPushButton::clicked, this, [this] { cmdViewEdit_Click(); });
    connect(mnuESchedule, &QAction::triggered, this, [this] { openViewForm(ViewForm::Schedule); });
    connect(mnuEShifts, &QAction::triggered, this, [this] { openViewForm(ViewForm::DailyShifts); });
    connect(mnuEConstraints, &QAction::triggered, this,
            [this] { openViewForm(ViewForm::AllConstraints); });
    connect(mnuEFonts, &QAction::triggered, this,
            [this] { openViewForm(ViewForm::FontsAndPrinter); });

    connect(cmdPrint, &QPushButton::clicked, this, [this] { cmdPrint_Click(); });
    connect(cmdExport, &QPushButton::clicked, this, [this] { cmdExport_Click(); });
    // Each item prints or exports one thing, whatever the boxes say.
    const std::pair<QAction*, int> singleOutputs[] = {{mnuFPCalendar, 1},  {mnuFPGrid, 2},
                                                      {mnuFPTearsheet, 3}, {mnuFEEmail, 4},
                                                      {mnuFEOutlook, 5},   {mnuFECreator, 6}};
    for (const auto& [item, position] : singleOutputs) {
        connect(item, &QAction::triggered, this,
                [this, position = position] { modPrintIndividualFormat(position); });
    }
    connect(mnuHHelp, &QAction::triggered, this, [this] { mnuHHelp_Click(); });
    connect(mnuHDump, &QAction::triggered, this, [this] { mnuHDump_Click(); });
    connect(mnuHOpenDump, &QAction::triggered, this, [this] { mnuHOpenDump_Click(); });
    connect(mnuHAbout, &QAction::triggered, this, [this] { mnuHAbout_Click(); });

    connect(cmdGenerate, &QPushButton::clicked, this, [this] { cmdGenerate_Click(); });
    // The engine items choose the engine in the list and press the button, so they do
    // nothing while the button is disabled. The serial engines stand in the menu in the
    // reverse of their order in the list.
    connect(mnuGSmartRandom, &QAction::triggered, this, [this] { pressGenerate(0); });
    connect(mnuGShuffled, &QAction::triggered, this, [this] { pressGenerate(1); });
    connect(mnuGMixed, &QAction::triggered, this, [this] { pressGenerate(3); });
    connect(mnuGHorizontal, &QAction::triggered, this, [this] { pressGenerate(2); });

    // The print boxes and the engine list show what the workspace holds, and a user's change
    // goes back into the workspace, where saving reads it.
    connect(cmbGenerate, &QComboBox::currentIndexChanged, this,
            [this](int index) { ws_.cmbGenerateListIndex = index; });
    for (std::size_t i = 0; i < chkPrint.size(); ++i) {
        QCheckBox* box = chkPrint[i];
        connect(box, &QCheckBox::stateChanged, this, [this, box, i](int state) {
            ws_.chkPrint[i] = valueOf(state);
            // A greyed box comes only from a file; a user's click goes between on and off.
            if (state != Qt::PartiallyChecked) {
                box->setTristate(false);
            }
        });
    }
}

// A close of the window while a long command runs waits for the command to stop.
bool frmMain::Form_Unload() {
    if (ctx_.events.putOffClose() || !closeMainWindow(ws_, ctx_, *this)) {
        return false;
    }
    emit programEnds();
    return true;
}

void frmMain::runLongCommand(const std::function<void()>& command) {
    if (ctx_.events.runCommand(command)) {
        close();
    }
}

void frmMain::mnuFExit_Click() {
    if (exitProgram(ws_, ctx_, *this)) {
        emit programEnds();
    }
}

// Until a file was opened or saved, or something changed, there is nothing worth saving.
void frmMain::mnuFile_Click() {
    mnuFSaveAs->setEnabled(ws_.gDirty.has_value());
    // Calendars are made of a generated schedule, as the export's are.
    mnuFSaveIcs->setEnabled(ws_.gScheduleGenerated == 1);
}

void frmMain::mnuFNew_Click() {
    newSchedule(ws_, ctx_, *this);
}

void frmMain::mnuFOpen_Click() {
    openScheduleFile(ws_, ctx_, *this);
}

void frmMain::mnuFSaveAs_Click() {
    saveScheduleAs(ws_, ctx_, *this);
}

void frmMain::mnuFSaveIcs_Click() {
    saveCalendarsAsIcs(ws_, ctx_);
}

void frmMain::vscDate_Change() {
    if (!changeMonth(ws_, ctx_, vscDate->value())) {
        return;
    }
    labDate->setText(ws_.currentMonthAndYear());
    modLeaveBusyState();
    lstAgents->setFocus();
}

void frmMain::cmdViewEdit_Click() {
    showHourglass();
    const std::optional<ViewForm> form = viewFormNamed(cmbViewEdit->currentText());
    if (!form) {
        showNormalPointer();
        return;
    }
    modEnterBusyState();
    doEvents();
    showViewForm(*form);
}

void frmMain::openViewForm(ViewForm form) {
    showHourglass();
    modEnterBusyState();
    doEvents();
    showViewForm(form);
    showNormalPointer();
}

void frmMain::showViewForm(ViewForm form) {
    switch (form) {
        case ViewForm::Schedule:
            showReview();
            break;
        case ViewForm::DailyShifts:
            shifts_->show();
            break;
        case ViewForm::AllConstraints:
            constraints_->show();
            break;
        case ViewForm::FontsAndPrinter:
            printerSetup_->show();
            break;
    }
}

void frmMain::pressGenerate(int listIndex) {
    cmbGenerate->setCurrentIndex(listIndex);
    cmdGenerate->click();
}
