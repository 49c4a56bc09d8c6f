// The main window's two faces, the normal one that follows the Workspace and the busy one,
// and what the window shows of the Workspace: caption, agent list, view/edit list, print
// boxes and engine list.

#include "core/forms/formkit.h"
#include "core/model/agentkeys.h"
#include "core/model/workspace.h"
#include "core/services/context.h"
#include "core/services/msgbox.h"
#include "generation/forms/frmWholeCalendar.h"
#include "persistence/workspacefile.h"
#include "shell/forms/frmMain.h"
#include "shell/forms/monthstepper.h"
#include "shell/viewedit.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QSignalBlocker>

namespace {

// A print box holds 0 (off), 1 (on) or 2 (greyed), as the files store it.
Qt::CheckState checkStateOf(int value) {
    switch (value) {
        case 1:
            return Qt::Checked;
        case 2:
            return Qt::PartiallyChecked;
        default:
            return Qt::Unchecked;
    }
}

QString agentListCaption(int count) {
    if (count == 0) {
        return QStringLiteral("Agent list (no agents)");
    }
    if (count == 1) {
        return QStringLiteral("Agent list (1 agent)");
    }
    return QStringLiteral("Agent list (%1 agents)").arg(count);
}

}  // namespace

void frmMain::Form_Load() {
    modUpdateCmbViewEdit();
    {
        // Filling the list is no choice of an engine.
        const QSignalBlocker quiet(cmbGenerate);
        cmbGenerate->clear();
        cmbGenerate->addItems({QStringLiteral("SmartRandom"), QStringLiteral("Shuffled"),
                               QStringLiteral("Serial (horizontal)"),
                               QStringLiteral("Serial (mixed)")});
    }
    cmbViewEdit->setCurrentIndex(0);
    // The engine and the print boxes the working file gave stand: reading the file loaded
    // this form before, so the list index the file set outlives the load's own.
    showPrintAndEngine();
    ws_.gScrollValue = vscDate->value();
    // The window stands in the middle of its screen.
    if (const QScreen* display = window()->screen()) {
        const QRect area = display->geometry();
        window()->move(area.x() + (area.width() - window()->width()) / 2,
                       area.y() + (area.height() - window()->height()) / 2);
    }
}

void frmMain::showPrintAndEngine() {
    if (ws_.cmbGenerateListIndex >= 0 && ws_.cmbGenerateListIndex < cmbGenerate->count()) {
        cmbGenerate->setCurrentIndex(ws_.cmbGenerateListIndex);
    }
    for (std::size_t i = 0; i < chkPrint.size(); ++i) {
        if (ws_.chkPrint[i] >= 0 && ws_.chkPrint[i] <= 2) {
            chkPrint[i]->setCheckState(checkStateOf(ws_.chkPrint[i]));
        }
    }
}

void frmMain::showStatus(const QString& text) {
    fraDate->hide();
    fraStatus->show();
    labStatus->setText(text);
}

void frmMain::beginLongCommand(const QString& status) {
    showStatus(status);
    modEnterBusyState();
    showHourglass();
    doEvents();
}

void frmMain::showOpenedSchedule() {
    modFillAgentList();
    showPrintAndEngine();
}

void frmMain::showReview() {
    review_->show();
}

void frmMain::modEnterBusyState() {
    setEnabledAll({lstAgents, cmdAdd, cmdChange, cmdDelete, cmdVacations, cmdRestrictions,
                   cmdHolidays, cmdNotes, labDate, cmbViewEdit, cmdViewEdit, cmbGenerate,
                   cmdGenerate, mnuFPrint, mnuFExport},
                  false);
    for (QCheckBox* box : chkPrint) {
        box->setEnabled(false);
    }
    setEnabledAll({fraPrint, fraExport, cmdPrint, cmdExport, vscDate, mnuFile, mnuEdit, mnuGenerate,
                   mnuHelp, fraAgents, fraDate, fraViewEdit, fraGenerate, fraPrint, fraExport},
                  false);
    doEvents();
    showToFront();
}

void frmMain::modLeaveBusyState() {
    setWindowTitle(windowCaption());
    setEnabledAll({fraAgents, fraDate, fraViewEdit, fraGenerate, lstAgents, cmdAdd, cmdChange,
                   cmdDelete, cmdVacations, cmdRestrictions, cmdHolidays, cmdNotes, labDate,
                   cmbViewEdit, cmdViewEdit, cmbGenerate, cmdGenerate},
                  true);
    modUpdateCmbViewEdit();

    // The boxes and the engine list show what the commands will act on, also after a road
    // that read the working file again. Printing and exporting need a generated schedule.
    showPrintAndEngine();
    const bool generated = ws_.gScheduleGenerated == 1;
    for (QCheckBox* box : chkPrint) {
        box->setEnabled(generated);
    }
    setEnabledAll({fraPrint, fraExport, cmdPrint, cmdExport, mnuFPrint, mnuFExport}, generated);

    setEnabledAll({vscDate, mnuFile, mnuEdit, mnuGenerate, mnuHelp}, true);
    fraStatus->hide();
    fraDate->show();
    labStatus->clear();
    labStatusHigh->clear();
    setAgentFrameCaption();

    // Without agents only Add is left: holidays and notes hang on the agent list too.
    if (ws_.gAgentCount == 0) {
        setEnabledAll({cmdChange, cmdDelete, cmdVacations, cmdRestrictions, cmdHolidays,
                       cmdGenerate, cmbGenerate, cmdNotes},
                      false);
    }
    // Add asks for this so that a run of adds keeps the cursor on the button.
    if (ws_.gFocusAddButton == 1) {
        cmdAdd->setFocus();
        ws_.gFocusAddButton = 0;
    }
    // The busy face took the focus from the control that had it.
    takeFocus();
    showNormalPointer();
    doEvents();
    showToFront();
}

void frmMain::modFillAgentList() {
    {
        // Refilling is no choice of the user's: the selection is set once the list stands.
        const QSignalBlocker quiet(lstAgents);
        lstAgents->clear();
        for (int i = 1; i <= ws_.gAgentCount; ++i) {
            lstAgents->addItem(ws_.gAgentLast[i] + QStringLiteral(", ") + ws_.gAgentFirst[i]);
        }
    }
    if (lstAgents->count() >= 1) {
        lstAgents->setCurrentRow(ws_.gSelectedAgent.value_or(0));
    }
    if (lstAgents->count() > 0 && lstAgents->currentRow() == -1) {
        lstAgents->setCurrentRow(0);
    }
}

void frmMain::modUpdateAgentList() {
    setAgentFrameCaption();
    modSaveWorkspace(ws_, ctx_, QString());
    modBuildAgentKeys(ws_);
}

void frmMain::modUpdateCmbViewEdit() {
    const QStringList items = viewEditItems(ws_);
    cmbViewEdit->clear();
    cmbViewEdit->addItems(items);
    mnuESchedule->setEnabled(items.contains(QStringLiteral("Schedule")));
    mnuEConstraints->setEnabled(items.contains(QStringLiteral("All constraints")));
    cmbViewEdit->setCurrentIndex(0);
}

void frmMain::Form_Activate() {
    modLeaveBusyState();
    modFillAgentList();
    labDate->setText(ws_.currentMonthAndYear());
    if (ws_.gFocusAddButton == 1) {
        makeDefaultButton(cmdAdd);
    }
}

void frmMain::Form_GotFocus() {
    showNormalPointer();
    if (!ws_.gSelectedAgent) {
        ws_.gSelectedAgent = -1;
    }
    if (ws_.gAgentCount > 0) {
        lstAgents->setCurrentRow(*ws_.gSelectedAgent);
    }
    if (cmdAdd->isEnabled() && ws_.gFocusAddButton == 1) {
        cmdAdd->setFocus();
        ws_.gFocusAddButton = 0;
    }
}

void frmMain::lstAgents_Click() {
    ws_.gSelectedAgent = lstAgents->currentRow();
}

void frmMain::lstAgents_DblClick() {
    lstAgents_Click();
    cmdChange->click();
}

void frmMain::fraPrint_Click() {
    if (ws_.gScheduleGenerated == 0) {
        msgBox(ctx_.dialogs, QStringLiteral("You must generate a schedule before printing."),
               MsgIcon::Exclamation, MsgButtons::OK);
    }
}

void frmMain::focusInEvent(QFocusEvent* event) {
    MainForm::focusInEvent(event);
    Form_GotFocus();
}

// The workspace's tag shows only under the program's own name.
QString frmMain::windowCaption() const {
    QString name = programFile_.toUpper();
    if (name.endsWith(QLatin1String(".EXE"))) {
        name.chop(4);
    }
    QString caption = QStringLiteral("Desko for Windows rev 4.0 ");
    if (name == QLatin1String("DESKO40")) {
        caption += ws_.gScheduleTag;
    }
    return caption;
}

void frmMain::setAgentFrameCaption() {
    fraAgents->setTitle(agentListCaption(ws_.gAgentCount));
}

void frmMain::makeDefaultButton(QPushButton* button) {
    for (QPushButton* other : findChildren<QPushButton*>()) {
        other->setDefault(other == button);
    }
}

void frmMain::showToFront() {
    show();
    QWidget* screen = window();
    if (!screen->isActiveWindow()) {
        screen->raise();
        screen->activateWindow();
    }
}
