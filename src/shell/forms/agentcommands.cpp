// The agent list's commands. The edit frame takes the place of the month's commands while an
// agent is added or changed, and the main window stays busy until OK or Cancel ends the
// edit. The array work itself is in agentlist.cpp; here are the boxes, the list and the
// messages.

#include "core/forms/formkit.h"
#include "core/model/agentlist.h"
#include "core/model/textrules.h"
#include "core/model/workspace.h"
#include "core/services/context.h"
#include "core/services/dialogs.h"
#include "core/services/log.h"
#include "core/services/msgbox.h"
#include "export/resolvename.h"
#include "shell/forms/frmMain.h"

#include <QComboBox>
#include <QEvent>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>

#include <initializer_list>

namespace {

// A text box that gets the focus offers its whole text for overtyping.
class SelectAllOnFocus final : public QObject {
public:
    explicit SelectAllOnFocus(QLineEdit* box) : QObject(box), box_(box) {
        box->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == box_ && event->type() == QEvent::FocusIn) {
            modSelectAllText(box_);
        }
        return false;
    }

private:
    QLineEdit* box_;
};

const QString kSelectAnAgent = QStringLiteral("Please select an agent from the agent list.");
const QString kEnterBothNames =
    QStringLiteral("Please enter the first and last name for this agent.");
const QString kCapitalsQuestion = QStringLiteral(
    "For more professional printed reports, only the first letter of each name "
    "should be capitalized.  Would you like to correct the name now?");

// The edit frame in the place of the month's commands, or the commands back in their place.
void showEditFrame(frmMain& w, bool editing) {
    w.fraEditAgent->setVisible(editing);
    for (QGroupBox* frame : {w.fraGenerate, w.fraViewEdit, w.fraPrint, w.fraExport}) {
        frame->setVisible(!editing);
    }
}

// An underlined address is one the mail system resolved.
void setUnderlined(QLineEdit* box, bool underlined) {
    QFont font = box->font();
    font.setUnderline(underlined);
    box->setFont(font);
}

bool isUnderlined(const QLineEdit* box) {
    return box->font().underline();
}

// A command on one agent needs a list item chosen; without one the user is told so.
bool agentChosen(int listIndex, Dialogs& dialogs) {
    if (listIndex >= 0) {
        return true;
    }
    msgBox(dialogs, kSelectAnAgent, MsgIcon::Exclamation, MsgButtons::OK);
    return false;
}

QString fullName(const QString& first, const QString& last) {
    return first + QLatin1Char(' ') + last;
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
        new SelectAllOnFocus(box);
    }
}

void frmMain::cmdAdd_Click() {
    ws_.gFocusAddButton = 1;
    fraEditAgent->setTitle(QStringLiteral("Add an agent"));
    showEditFrame(*this, true);
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
    showEditFrame(*this, true);
    makeDefaultButton(cmdOK);
}

void frmMain::cmdChange_Click() {
    const int selected = lstAgents->currentRow();
    if (!agentChosen(selected, ctx_.dialogs)) {
        return;
    }
    fraEditAgent->setTitle(QStringLiteral("Edit an agent"));
    showEditFrame(*this, true);
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
    showEditFrame(*this, true);
    makeDefaultButton(cmdOK);
}

void frmMain::cmdCancel_Click() {
    for (QLineEdit* box : {txtLastName, txtFirstName, txtEmail}) {
        box->clear();
    }
    txtEmail_Change();
    showEditFrame(*this, false);
    modLeaveBusyState();
    showNormalPointer();
}

void frmMain::cmdResolveName_Click() {
    const QString lookFor = txtEmail->text().isEmpty()
                                ? fullName(txtFirstName->text(), txtLastName->text())
                                : txtEmail->text();
    const QString address = modResolveName(lookFor);
    if (!address.isEmpty()) {
        txtEmail->setText(address);
        setUnderlined(txtEmail, true);
    }
}

void frmMain::txtEmail_Change() {
    setUnderlined(txtEmail, false);
    show();
}

void frmMain::cmdOK_Click() {
    showHourglass();
    // A rejected edit counts as a change too.
    ws_.gDirty = 1;

    if (!isUnderlined(txtEmail) && !txtEmail->text().isEmpty()) {
        const QString address = modResolveName(txtEmail->text());
        if (!address.isEmpty()) {
            txtEmail->setText(address);
            setUnderlined(txtEmail, true);
            doEvents();
        }
    }

    const QString first = txtFirstName->text();
    const QString last = txtLastName->text();
    const QString email = txtEmail->text();

    // A missing name or a Yes to the capitals question keeps the frame open for typing.
    const auto missingName = [&] {
        if (!first.isEmpty() && !last.isEmpty()) {
            return false;
        }
        msgBox(ctx_.dialogs, kEnterBothNames, MsgIcon::Exclamation, MsgButtons::OK);
        (first.isEmpty() ? txtFirstName : txtLastName)->setFocus();
        showNormalPointer();
        return true;
    };
    const auto correctsCapitals = [&] {
        const bool firstProper = hasProperCapitals(first);
        if (firstProper && hasProperCapitals(last)) {
            return false;
        }
        const MsgAnswer answer =
            msgBox(ctx_.dialogs, kCapitalsQuestion, MsgIcon::Question, MsgButtons::YesNo);
        if (answer != MsgAnswer::Yes) {
            return false;
        }
        (firstProper ? txtLastName : txtFirstName)->setFocus();
        showNormalPointer();
        return true;
    };
    const auto alreadyListed = [&](const QString& opening, int agent) {
        const auto at = static_cast<std::size_t>(agent);
        const QString names = fullName(ws_.gAgentFirst[at], ws_.gAgentLast[at]);
        msgBox(ctx_.dialogs,
               opening + agentArticle(ws_.gAgentFirst[at]) + QLatin1Char(' ') + names +
                   QStringLiteral(".  Please enter a different name."),
               MsgIcon::Exclamation, MsgButtons::OK);
        return names;
    };

    if (ws_.gAgentEditMode == 1) {
        modStatus(ws_, ctx_,
                  QStringLiteral("Editing ") + fullName(first, last) +
                      QStringLiteral(" in the agent list"));
        if (missingName()) {
            return;
        }
        const int selected = ws_.gAgentEditIndex;
        const int duplicate = findAgentNamed(ws_, last, first, selected + 1);
        if (duplicate != 0) {
            const QString names =
                alreadyListed(QStringLiteral("The agent list already contains "), duplicate);
            modStatus(ws_, ctx_,
                      QStringLiteral("Agent list already contains ") +
                          agentArticle(ws_.gAgentFirst[static_cast<std::size_t>(duplicate)]) +
                          QLatin1Char(' ') + names);
        } else {
            if (correctsCapitals()) {
                return;
            }
            {
                // The list's own moves are no choice of the user's.
                const QSignalBlocker quiet(lstAgents);
                delete lstAgents->takeItem(selected);
                const int position = changeAgent(ws_, selected, last, first, email);
                ws_.gAgentEditIndex = static_cast<qint16>(position);
                lstAgents->insertItem(position, agentListItem(last, first));
                lstAgents->setCurrentRow(-1);
            }
        }
    } else if (ws_.gAgentEditMode == 0) {
        if (missingName()) {
            return;
        }
        modStatus(ws_, ctx_,
                  QStringLiteral("Adding ") + fullName(first, last) +
                      QStringLiteral(" to the agent list"));
        const int duplicate = findAgentNamed(ws_, last, first);
        if (duplicate != 0) {
            // This log line always says "a", whatever the name.
            const QString names =
                alreadyListed(QStringLiteral("The list already contains "), duplicate);
            modStatus(ws_, ctx_, QStringLiteral("Agent list already contains a ") + names);
        } else {
            if (correctsCapitals()) {
                return;
            }
            const QSignalBlocker quiet(lstAgents);
            const int position = addAgent(ws_, last, first, email);
            ws_.gAgentEditIndex = static_cast<qint16>(position);
            lstAgents->insertItem(position, agentListItem(last, first));
        }
    }

    showEditFrame(*this, false);
    for (QLineEdit* box : {txtLastName, txtFirstName, txtEmail}) {
        box->clear();
    }
    txtEmail_Change();
    modUpdateAgentList();
    modLeaveBusyState();
}

void frmMain::cmdDelete_Click() {
    const int selected = lstAgents->currentRow();
    if (!agentChosen(selected, ctx_.dialogs)) {
        return;
    }
    const auto agent = static_cast<std::size_t>(selected) + 1;
    const QString names = fullName(ws_.gAgentFirst[agent], ws_.gAgentLast[agent]);
    const MsgAnswer answer =
        msgBox(ctx_.dialogs,
               QStringLiteral("Deleting an agent will erase any vacations and shift "
                              "restrictions.  Are you sure you want to delete ") +
                   names + QLatin1Char('?'),
               MsgIcon::Question, MsgButtons::YesNo, 2);
    if (answer != MsgAnswer::Yes) {
        return;
    }
    modStatus(ws_, ctx_, QStringLiteral("Deleting ") + names);
    ws_.gDirty = 1;
    showHourglass();

    ws_.gAgentEditIndex = static_cast<qint16>(selected);
    {
        const QSignalBlocker quiet(lstAgents);
        delete lstAgents->takeItem(selected);
    }
    deleteAgent(ws_, selected);
    if (selected <= ws_.gAgentCount) {
        ws_.gSelectedAgent = selected;
    }
    // The agent that took the deleted one's place is chosen, or the new last one, and the
    // choice is the user's as if clicked, even where the list kept its row by itself.
    if (lstAgents->count() > 0) {
        {
            const QSignalBlocker quiet(lstAgents);
            lstAgents->setCurrentRow(selected < lstAgents->count() ? selected
                                                                   : lstAgents->count() - 1);
        }
        lstAgents_Click();
    }
    setAgentFrameCaption();

    const bool any = ws_.gAgentCount != 0;
    for (QWidget* control :
         std::initializer_list<QWidget*>{cmdChange, cmdDelete, cmdVacations, cmdRestrictions,
                                         cmdHolidays, cmdGenerate, cmbGenerate, cmdNotes}) {
        control->setEnabled(any);
    }
    modUpdateAgentList();
    showNormalPointer();
}

// The constraint buttons all hang on the agent list, and each wants an agent chosen, even
// Holidays and Notes, which concern no one agent. The day picker and the restrictions editor
// that read the mode they set join as they are built.
std::optional<int> frmMain::constraintAgent() {
    showHourglass();
    const int selected = lstAgents->currentRow();
    if (!agentChosen(selected, ctx_.dialogs)) {
        showNormalPointer();
        return std::nullopt;
    }
    return selected + 1;
}

void frmMain::cmdVacations_Click() {
    if (const std::optional<int> agent = constraintAgent()) {
        ws_.gDayPickerMode = 1;
        ws_.gDayPickerAgent = *agent;
        showNormalPointer();
    }
}

void frmMain::cmdRestrictions_Click() {
    if (const std::optional<int> agent = constraintAgent()) {
        ws_.gRestrictionAgent = *agent;
        showNormalPointer();
    }
}

void frmMain::cmdHolidays_Click() {
    if (constraintAgent()) {
        ws_.gDayPickerMode = 0;
        showNormalPointer();
    }
}

void frmMain::cmdNotes_Click() {
    if (constraintAgent()) {
        ws_.gDayPickerMode = 2;
        showNormalPointer();
    }
}
