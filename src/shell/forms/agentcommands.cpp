// The agent list's commands. The edit frame takes the place of the month's commands while an
// agent is added or changed, and the main window stays busy until OK or Cancel ends the
// edit. What the edit accepts and asks is the shell's agent-edit logic; here are the boxes,
// the list and the frames.

#include "constraints/daypicker.h"
#include "constraints/forms/frmHolidays.h"
#include "constraints/forms/frmRestrictions.h"
#include "core/forms/formkit.h"
#include "core/model/agentlist.h"
#include "core/model/workspace.h"
#include "core/services/context.h"
#include "shell/agentedit.h"
#include "shell/forms/frmMain.h"

#include <QComboBox>
#include <QEvent>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>

namespace {

// An underlined address is one the mail system resolved.
void setUnderlined(QLineEdit* box, bool underlined) {
    QFont font = box->font();
    font.setUnderline(underlined);
    box->setFont(font);
}

}  // namespace

void frmMain::connectAgentCommands() {
    connect(cmdAdd, &QPushButton::clicked, this, [this] { cmdAdd_Click(); });
    connect(cmdChange, &QPushButton::clicked, this, [this] { cmdChange_Click(); });
    connect(cmdOK, &QPushButton::clicked, this, [this] { cmdOK_Click(); });
    connect(cmdCancel, &QPushButton::clicked, this, [this] { cmdCancel_Click(); });
    connect(cmdDelete, &QPushButton::clicked, this, [this] { cmdDelete_Click(); });
    connect(cmdResolveName, &QPushButton::clicked, this, [this] { cmdResolveName_Click(); });
    connect(cmdVacations, &QPushButton::clicked, this, [this] { cmdVacations_Click(); });
    connect(cmdRestrictions, &QPushButton::clicked, this, [this] { cmdRestrictions_Click(); });
    connect(cmdHolidays, &QPushButton::clicked, this, [this] { cmdHolidays_Click(); });
    connect(cmdNotes, &QPushButton::clicked, this, [this] { cmdNotes_Click(); });
    connect(txtEmail, &QLineEdit::textEdited, this, [this] { txtEmail_Change(); });
    for (QLineEdit* box : {txtFirstName, txtLastName, txtEmail}) {
        selectAllOnFocus(box);
    }
    onEscape(fraEditAgent, [this] { cmdCancel->click(); });
}

// The edit frame in the place of the month's commands, or the commands back in their place.
void frmMain::showEditFrame(bool editing) {
    fraEditAgent->setVisible(editing);
    for (QGroupBox* frame : {fraGenerate, fraViewEdit, fraPrint, fraExport}) {
        frame->setVisible(!editing);
    }
}

void frmMain::clearEditFrame() {
    for (QLineEdit* box : {txtLastName, txtFirstName, txtEmail}) {
        box->clear();
    }
    txtEmail_Change();
}

void frmMain::cmdAdd_Click() {
    ws_.gFocusAddButton = 1;
    fraEditAgent->setTitle(QStringLiteral("Add an agent"));
    showEditFrame(true);
    show();
    showHourglass();
    ws_.gAgentEditMode = 0;
    modEnterBusyState();
    showNormalPointer();
    txtFirstName->setFocus();
    modSelectAllText(txtFirstName);
    doEvents();
    showNormalPointer();
    // Entering the busy face shows the window again; the frames must still be as set.
    showEditFrame(true);
    makeDefaultButton(cmdOK);
}

void frmMain::cmdChange_Click() {
    const int selected = lstAgents->currentRow();
    if (!agentChosen(ctx_, selected)) {
        return;
    }
    fraEditAgent->setTitle(QStringLiteral("Edit an agent"));
    showEditFrame(true);
    showHourglass();
    ws_.gAgentEditMode = 1;
    modEnterBusyState();
    ws_.gAgentEditIndex = static_cast<qint16>(selected);
    txtFirstName->setFocus();
    const auto agent = static_cast<std::size_t>(selected) + 1;
    txtLastName->setText(ws_.gAgentLast[agent]);
    txtFirstName->setText(ws_.gAgentFirst[agent]);
    // An address read from the list is one the mail system has not resolved in this edit.
    txtEmail->setText(ws_.gAgentEmail[agent]);
    txtEmail_Change();
    modSelectAllText(txtFirstName);
    doEvents();
    showNormalPointer();
    showEditFrame(true);
    makeDefaultButton(cmdOK);
}

void frmMain::cmdCancel_Click() {
    clearEditFrame();
    showEditFrame(false);
    modLeaveBusyState();
    showNormalPointer();
}

void frmMain::cmdResolveName_Click() {
    showHourglass();
    const QString address =
        lookUpAddress(ws_, ctx_, {txtFirstName->text(), txtLastName->text(), txtEmail->text()});
    showNormalPointer();
    if (!address.isEmpty()) {
        txtEmail->setText(address);
        setUnderlined(txtEmail, true);
        doEvents();
    }
}

void frmMain::txtEmail_Change() {
    setUnderlined(txtEmail, false);
    show();
}

void frmMain::cmdOK_Click() {
    showHourglass();
    const AgentEditResult result =
        commitAgentEdit(ws_, ctx_,
                        {txtFirstName->text(), txtLastName->text(), txtEmail->text(),
                         txtEmail->font().underline()});
    if (result.entry.emailResolved && !txtEmail->font().underline()) {
        txtEmail->setText(result.entry.email);
        setUnderlined(txtEmail, true);
        doEvents();
    }
    if (result.end != AgentEditEnd::Close) {
        (result.end == AgentEditEnd::TypeFirstName ? txtFirstName : txtLastName)->setFocus();
        showNormalPointer();
        return;
    }
    {
        // The list's own moves are no choice of the user's.
        const QSignalBlocker quiet(lstAgents);
        if (result.removedItem >= 0) {
            delete lstAgents->takeItem(result.removedItem);
        }
        if (result.insertedItem >= 0) {
            lstAgents->insertItem(result.insertedItem,
                                  agentListItem(result.entry.last, result.entry.first));
        }
        if (result.removedItem >= 0) {
            lstAgents->setCurrentRow(-1);
        }
    }
    showEditFrame(false);
    clearEditFrame();
    modUpdateAgentList();
    modLeaveBusyState();
}

void frmMain::cmdDelete_Click() {
    const int selected = lstAgents->currentRow();
    if (!agentChosen(ctx_, selected)) {
        return;
    }
    showHourglass();
    if (!deleteAgentAsked(ws_, ctx_, selected)) {
        showNormalPointer();
        return;
    }
    {
        const QSignalBlocker quiet(lstAgents);
        delete lstAgents->takeItem(selected);
    }
    // The agent that took the deleted one's place is chosen, or the new last one, and the
    // choice is the user's as if clicked, even where the list kept its row by itself.
    if (lstAgents->count() > 0) {
        {
            const QSignalBlocker quiet(lstAgents);
            lstAgents->setCurrentRow(std::min(selected, lstAgents->count() - 1));
        }
        lstAgents_Click();
    }
    setAgentFrameCaption();
    setEnabledAll({cmdChange, cmdDelete, cmdVacations, cmdRestrictions, cmdHolidays, cmdGenerate,
                   cmbGenerate, cmdNotes},
                  ws_.gAgentCount != 0);
    modUpdateAgentList();
    showNormalPointer();
}

// The constraint buttons all hang on the agent list, and each wants an agent chosen, even
// Holidays and Notes, which concern no one agent.
std::optional<int> frmMain::constraintAgent() {
    showHourglass();
    const int selected = lstAgents->currentRow();
    showNormalPointer();
    if (!agentChosen(ctx_, selected)) {
        return std::nullopt;
    }
    showHourglass();
    return selected + 1;
}

void frmMain::cmdVacations_Click() {
    if (const std::optional<int> agent = constraintAgent()) {
        ws_.gDayPickerMode = kPickVacations;
        ws_.gDayPickerAgent = *agent;
        dayPicker_->show();
    }
}

void frmMain::cmdRestrictions_Click() {
    if (const std::optional<int> agent = constraintAgent()) {
        ws_.gRestrictionAgent = *agent;
        modEnterBusyState();
        restrictions_->show();
    }
}

void frmMain::cmdHolidays_Click() {
    if (constraintAgent()) {
        ws_.gDayPickerMode = kPickHolidays;
        dayPicker_->show();
    }
}

void frmMain::cmdNotes_Click() {
    if (constraintAgent()) {
        ws_.gDayPickerMode = kPickNotedDays;
        dayPicker_->show();
    }
}
