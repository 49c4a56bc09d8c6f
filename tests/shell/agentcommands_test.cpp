#include "core/model/textrules.h"
#include "core/model/workspace.h"
#include "core/services/msgbox.h"
#include "core/services/textfile.h"
#include "fakes.h"
#include "shell/forms/frmMain.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>
#include <tuple>

namespace {

const QString kCapitals = QStringLiteral(
    "For more professional printed reports, only the first letter of each "
    "name should be capitalized.  Would you like to correct the name now?");

// The agent list's commands, driven through the main window's buttons and boxes. The array
// surgery behind them is the logic tests' business; here are the wiring, the texts and the
// working file.
class AgentCommands : public ::testing::Test {
protected:
    // The window on a fresh month with these agents, and no working file or log left over.
    void start(std::initializer_list<std::pair<const char*, const char*>> names) {
        ASSERT_TRUE(home.isValid());
        window.reset();
        ws = Workspace();
        s.dialogs.shown.clear();
        openMonth(ws, 2027, 1, home.path());
        QFile::remove(ws.gConfigFile);
        QFile::remove(ws.gLogFile);
        ws.gAgentCount = static_cast<int>(names.size());
        ws.redimAgents(ws.gAgentCount);
        int i = 0;
        for (const auto& [last, first] : names) {
            ws.gAgentLast[++i] = QString::fromUtf8(last);
            ws.gAgentFirst[i] = QString::fromUtf8(first);
        }
        window = std::make_unique<frmMain>(ws, s.ctx, QStringLiteral("desko40"));
        window->show();
    }

    // Add (row -1) or Change on a row opens the edit frame.
    void openEditor(int row) {
        if (row < 0) {
            window->cmdAdd->click();
        } else {
            window->lstAgents->setCurrentRow(row);
            window->cmdChange->click();
        }
    }

    void fill(const char* first, const char* last, const char* email = "") {
        window->txtFirstName->setText(QString::fromUtf8(first));
        window->txtLastName->setText(QString::fromUtf8(last));
        window->txtEmail->setText(QString::fromUtf8(email));
    }

    void edit(int row, const char* first, const char* last, const char* email = "") {
        openEditor(row);
        fill(first, last, email);
        window->cmdOK->click();
    }

    // The list's items, which must be the arrays' agents, item i - 1 for agent i.
    QStringList listed() const {
        QStringList items;
        QStringList arrays;
        for (int row = 0; row < window->lstAgents->count(); ++row) {
            items.append(window->lstAgents->item(row)->text());
        }
        for (int i = 1; i <= ws.gAgentCount; ++i) {
            arrays.append(ws.gAgentLast[i] + QStringLiteral(", ") + ws.gAgentFirst[i]);
        }
        EXPECT_EQ(items, arrays) << "the list and the arrays differ";
        return items;
    }

    // The working file's section, one "key=value" a line.
    QStringList section(const char* name) const {
        const QStringList lines =
            readTextFile(ws.gConfigFile).value_or(QString()).split(QStringLiteral("\r\n"));
        auto i = lines.indexOf(QStringLiteral("[%1]").arg(QString::fromUtf8(name)));
        QStringList result;
        while (i >= 0 && ++i < lines.size() && !lines[i].isEmpty()) {
            result.append(lines[i]);
        }
        return i < 0 ? QStringList{QStringLiteral("no section")} : result;
    }

    bool logged(const QString& line) const {
        return readTextFile(ws.gLogFile)
            .value_or(QString())
            .contains(QStringLiteral("]     ") + line + QStringLiteral("\r\n"));
    }

    // The one message box shown since the start, its text broken as the box breaks it.
    void expectBox(const QString& text, MsgIcon icon, MsgButtons buttons, int defaultButton = 1) {
        ASSERT_EQ(s.dialogs.shown.size(), 1U);
        const ScriptedDialogs::Shown& box = s.dialogs.shown[0];
        EXPECT_EQ(box.text, modWrapMessage(text, s.dialogs));
        EXPECT_EQ(box.icon, icon);
        EXPECT_EQ(box.buttons, buttons);
        EXPECT_EQ(box.defaultButton, defaultButton);
    }

    // An open editor takes the place of the month's commands and keeps the user in it; a
    // closed one gives them back with its boxes emptied.
    void expectEditor(bool open) const {
        EXPECT_EQ(window->fraEditAgent->isVisible(), open);
        for (QGroupBox* frame :
             {window->fraGenerate, window->fraViewEdit, window->fraPrint, window->fraExport}) {
            EXPECT_EQ(frame->isVisible(), !open) << frame->objectName().toStdString();
        }
        EXPECT_EQ(window->cmdAdd->isEnabled(), !open);
        EXPECT_EQ(window->lstAgents->isEnabled(), !open);
        if (!open) {
            EXPECT_EQ(window->txtFirstName->text() + window->txtLastName->text() +
                          window->txtEmail->text(),
                      QString());
        }
    }

    QTemporaryDir home;
    TestServices s;
    Workspace ws;
    std::unique_ptr<frmMain> window;
};

}  // namespace

// Adds and changes keep the sorted list in step with the arrays and the working file. A change
// takes the agent's vacations (day 31 too) along to where its new name sorts, as a delete and
// an add would not; a change of the address alone is no duplicate of the agent itself.
TEST_F(AgentCommands, EditsKeepListArraysAndFileInStep) {
    start({{"Brennan", "Patrick"}, {"Delgado", "Sofia"}});
    ws.gVacation[1][3] = ws.gVacation[1][31] = ws.gVacation[2][9] = 1;
    window->cmdAdd->click();
    EXPECT_EQ(window->fraEditAgent->title(), QStringLiteral("Add an agent"));
    expectEditor(true);
    EXPECT_TRUE(window->cmdOK->isDefault());
    fill("Ana", "de la Cruz");
    // The underline marks an address the mail system resolved, and typing takes it off; with
    // no mail system wired, nothing resolves and the typed address stays as it is.
    window->cmdResolveName->click();
    EXPECT_TRUE(window->txtEmail->text().isEmpty());
    EXPECT_FALSE(window->txtEmail->font().underline());
    QFont resolved = window->txtEmail->font();
    resolved.setUnderline(true);
    window->txtEmail->setFont(resolved);
    window->txtEmail->setFocus();
    QTest::keyClicks(window->txtEmail, QStringLiteral("ana@office.example"));
    EXPECT_FALSE(window->txtEmail->font().underline());
    // A particle in lower case is asked about; the user keeps it.
    s.dialogs.answers = {MsgAnswer::No};
    window->cmdOK->click();
    expectBox(kCapitals, MsgIcon::Question, MsgButtons::YesNo);
    expectEditor(false);
    EXPECT_EQ(listed(), texts({"Brennan, Patrick", "de la Cruz, Ana", "Delgado, Sofia"}));
    EXPECT_EQ(window->fraAgents->title(), QStringLiteral("Agent list (3 agents)"));
    EXPECT_TRUE(logged(QStringLiteral("Adding Ana de la Cruz to the agent list")));

    s.dialogs.shown.clear();
    openEditor(0);
    EXPECT_EQ(window->fraEditAgent->title(), QStringLiteral("Edit an agent"));
    expectEditor(true);
    EXPECT_EQ(window->txtFirstName->text() + window->txtLastName->text(),
              QStringLiteral("PatrickBrennan"));
    fill("Patrick", "Young", "pat@office.example");
    window->cmdOK->click();
    expectEditor(false);
    EXPECT_EQ(listed(), texts({"de la Cruz, Ana", "Delgado, Sofia", "Young, Patrick"}));
    EXPECT_EQ(ws.gAgentEditIndex, 2);
    EXPECT_EQ(ws.gAgentKey[3], QStringLiteral("Young"));
    EXPECT_EQ(section("Vacations"), texts({"1=2|9", "2=3|3", "3=3|31"}));
    EXPECT_TRUE(logged(QStringLiteral("Editing Patrick Young in the agent list")));

    edit(1, "Sofia", "Delgado", "sofia@office.example");
    EXPECT_TRUE(s.dialogs.shown.empty());
    EXPECT_EQ(section("Agents"),
              texts({"1=de la Cruz|Ana|ana@office.example", "2=Delgado|Sofia|sofia@office.example",
                     "3=Young|Patrick|pat@office.example"}));
}

// Deleting asks first, then chooses the agent that took the place, or the new last one; the
// only agent's going leaves Add alone.
TEST_F(AgentCommands, DeleteAsksAndChoosesTheNextAgent) {
    const std::tuple<int, const char*, QStringList, int> cases[] = {
        {1, "Wei Chen", texts({"Brennan, Patrick", "Delgado, Sofia"}), 1},
        {2, "Sofia Delgado", texts({"Brennan, Patrick", "Chen, Wei"}), 1},
    };
    for (const auto& [row, names, items, selected] : cases) {
        SCOPED_TRACE(names);
        start({{"Brennan", "Patrick"}, {"Chen", "Wei"}, {"Delgado", "Sofia"}});
        window->lstAgents->setCurrentRow(row);
        s.dialogs.answers = {MsgAnswer::Yes};
        window->cmdDelete->click();

        expectBox(QStringLiteral("Deleting an agent will erase any vacations and shift "
                                 "restrictions.  Are you sure you want to delete ") +
                      QString::fromUtf8(names) + QStringLiteral("?"),
                  MsgIcon::Question, MsgButtons::YesNo, 2);
        EXPECT_EQ(listed(), items);
        EXPECT_EQ(window->lstAgents->currentRow(), selected);
        EXPECT_EQ(ws.gSelectedAgent, selected);
        EXPECT_EQ(ws.gDirty, 1);
        EXPECT_EQ(window->fraAgents->title(), QStringLiteral("Agent list (2 agents)"));
        EXPECT_TRUE(logged(QStringLiteral("Deleting ") + QString::fromUtf8(names)));
    }

    // A No changes nothing.
    s.dialogs.shown.clear();
    s.dialogs.answers = {MsgAnswer::No};
    window->cmdDelete->click();
    EXPECT_EQ(s.dialogs.shown.size(), 1U);
    EXPECT_EQ(listed(), texts({"Brennan, Patrick", "Chen, Wei"}));

    // The only agent goes: every command that needs an agent is disabled at once.
    start({{"Brennan", "Patrick"}});
    s.dialogs.answers = {MsgAnswer::Yes};
    window->cmdDelete->click();
    EXPECT_EQ(listed(), QStringList());
    EXPECT_EQ(window->fraAgents->title(), QStringLiteral("Agent list (no agents)"));
    for (QWidget* control : std::initializer_list<QWidget*>{
             window->cmdChange, window->cmdDelete, window->cmdVacations, window->cmdRestrictions,
             window->cmdHolidays, window->cmdGenerate, window->cmbGenerate, window->cmdNotes}) {
        EXPECT_FALSE(control->isEnabled()) << control->objectName().toStdString();
    }
    EXPECT_TRUE(window->cmdAdd->isEnabled());
    EXPECT_EQ(section("Agents"), QStringList());
}

// What the edit refuses or questions, with the words shown and logged; every such edit counts
// as a change all the same. A Yes to the capitals question sends the user back to the box.
TEST_F(AgentCommands, RefusalsAndTheCapitalsQuestion) {
    const QString enterBoth =
        QStringLiteral("Please enter the first and last name for this agent.");
    // Add (row -1) or change of row; the focus the frame keeps, or none when it closes.
    const std::tuple<int, const char*, const char*, QString, const char*, const char*> cases[] = {
        {-1, "Kim", "", enterBoth, "txtLastName", nullptr},
        {1, "", "Chen", enterBoth, "txtFirstName", nullptr},
        {-1, "WEI", "chen",
         QStringLiteral("The list already contains a Wei Chen.  Please enter a different name."),
         nullptr, "Agent list already contains a Wei Chen"},
        // The log line of an add always says "a".
        {-1, "Ann", "Adams",
         QStringLiteral("The list already contains an Ann Adams.  Please enter a different name."),
         nullptr, "Agent list already contains a Ann Adams"},
        {1, "ann", "ADAMS",
         QStringLiteral(
             "The agent list already contains an Ann Adams.  Please enter a different name."),
         nullptr, "Agent list already contains an Ann Adams"},
        {-1, "Ian", "McDonald", kCapitals, "txtLastName", nullptr},
        {1, "wei", "Chen", kCapitals, "txtFirstName", nullptr},
    };
    for (const auto& [row, first, last, shown, focus, logLine] : cases) {
        SCOPED_TRACE(std::string(first) + " " + last);
        start({{"Adams", "Ann"}, {"Chen", "Wei"}});
        s.dialogs.answers = {MsgAnswer::Yes};
        edit(row, first, last);

        const bool question = shown == kCapitals;
        expectBox(shown, question ? MsgIcon::Question : MsgIcon::Exclamation,
                  question ? MsgButtons::YesNo : MsgButtons::OK);
        EXPECT_EQ(ws.gDirty, 1);
        EXPECT_EQ(listed(), texts({"Adams, Ann", "Chen, Wei"}));
        if (focus != nullptr) {
            expectEditor(true);
            EXPECT_EQ(window->txtFirstName->text(), QString::fromUtf8(first));
            EXPECT_EQ(window->focusWidget()->objectName(), QString::fromUtf8(focus));
        } else {
            expectEditor(false);
        }
        if (logLine != nullptr) {
            EXPECT_TRUE(logged(QString::fromUtf8(logLine)));
        }
    }
}

// Every command on an agent wants one chosen, Holidays and Notes too; with one chosen, the
// constraint buttons say which picker and which agent.
TEST_F(AgentCommands, CommandsOnAnAgentNeedOneChosen) {
    start({{"Brennan", "Patrick"}, {"Chen", "Wei"}});
    // The button, then the day picker's mode and agent and the restrictions' agent it sets.
    const std::tuple<QPushButton*, int, int, int> cases[] = {
        {window->cmdChange, -1, -1, -1},  {window->cmdDelete, -1, -1, -1},
        {window->cmdVacations, 1, 2, -1}, {window->cmdRestrictions, -1, -1, 2},
        {window->cmdHolidays, 0, -1, -1}, {window->cmdNotes, 2, -1, -1},
    };
    for (const auto& [button, mode, dayAgent, restrictionAgent] : cases) {
        SCOPED_TRACE(button->objectName().toStdString());
        ws.gDayPickerMode = ws.gDayPickerAgent = ws.gRestrictionAgent = -1;
        s.dialogs.shown.clear();
        window->lstAgents->setCurrentRow(-1);
        button->click();
        expectBox(QStringLiteral("Please select an agent from the agent list."),
                  MsgIcon::Exclamation, MsgButtons::OK);
        EXPECT_EQ(std::tuple(ws.gDayPickerMode, ws.gDayPickerAgent, ws.gRestrictionAgent),
                  std::tuple(-1, -1, -1));
        EXPECT_EQ(ws.gAgentCount, 2);
        EXPECT_FALSE(window->fraEditAgent->isVisible());

        if (mode != -1 || restrictionAgent != -1) {
            s.dialogs.shown.clear();
            window->lstAgents->setCurrentRow(1);
            button->click();
            EXPECT_TRUE(s.dialogs.shown.empty());
            EXPECT_EQ(std::tuple(ws.gDayPickerMode, ws.gDayPickerAgent, ws.gRestrictionAgent),
                      std::tuple(mode, dayAgent, restrictionAgent));
        }
    }
}

// Cancel puts the window back as it was and touches nothing else: no agent, no change flag,
// no working file.
TEST_F(AgentCommands, CancelLeavesEverythingAsItWas) {
    start({{"Brennan", "Patrick"}, {"Chen", "Wei"}});
    for (const int row : {-1, 1}) {
        SCOPED_TRACE(row);
        openEditor(row);
        fill("Zoe", "Abbott", "zoe@office.example");
        window->cmdCancel->click();
        expectEditor(false);
        EXPECT_EQ(listed(), texts({"Brennan, Patrick", "Chen, Wei"}));
        EXPECT_FALSE(ws.gDirty.has_value());
        EXPECT_FALSE(QFile::exists(ws.gConfigFile));
    }
}
