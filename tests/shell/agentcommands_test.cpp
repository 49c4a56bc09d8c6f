#include "fakes.h"
#include "persistence/textfile.h"
#include "shell/frmMain.h"
#include "shell/session.h"
#include "shell/textrules.h"
#include "workspace/workspace.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace {

const QString kSelectAnAgent = QStringLiteral("Please select an agent from the agent list.");

struct Name {
    const char* last;
    const char* first;
};

// The agent list's commands, driven through the main window's buttons and boxes.
class AgentCommands : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(home.isValid());
        openMonth(ws, 2027, 1, home.path());
    }

    void withAgents(std::initializer_list<Name> names) {
        ws.gAgentCount = static_cast<int>(names.size());
        ws.redimAgents(ws.gAgentCount);
        int i = 0;
        for (const Name& name : names) {
            ++i;
            ws.gAgentLast[i] = QString::fromUtf8(name.last);
            ws.gAgentFirst[i] = QString::fromUtf8(name.first);
        }
    }

    frmMain& open() {
        window = std::make_unique<frmMain>(ws, s.ctx, QStringLiteral("desko40"));
        window->show();
        return *window;
    }

    // Fills the edit frame and presses OK; Add or Change must have opened it.
    void enter(const char* first, const char* last, const char* email = "") {
        window->txtFirstName->setText(QString::fromUtf8(first));
        window->txtLastName->setText(QString::fromUtf8(last));
        window->txtEmail->setText(QString::fromUtf8(email));
        window->cmdOK->click();
    }

    void add(const char* first, const char* last, const char* email = "") {
        window->cmdAdd->click();
        enter(first, last, email);
    }

    void change(int row, const char* first, const char* last, const char* email = "") {
        window->lstAgents->setCurrentRow(row);
        window->cmdChange->click();
        enter(first, last, email);
    }

    QStringList listItems() const {
        QStringList items;
        for (int row = 0; row < window->lstAgents->count(); ++row) {
            items.append(window->lstAgents->item(row)->text());
        }
        return items;
    }

    // The agents as the arrays hold them, in the list's form.
    QStringList agents() const {
        QStringList items;
        for (int i = 1; i <= ws.gAgentCount; ++i) {
            items.append(ws.gAgentLast[i] + QStringLiteral(", ") + ws.gAgentFirst[i]);
        }
        return items;
    }

    // The working file's section, one "key=value" a line.
    QStringList section(const char* name) const {
        const QString text = readTextFile(ws.gConfigFile).value_or(QString());
        const QString head = QStringLiteral("[") + QString::fromUtf8(name) + QStringLiteral("]");
        QStringList lines = text.split(QStringLiteral("\r\n"));
        const auto start = lines.indexOf(head);
        if (start < 0) {
            return {QStringLiteral("no section")};
        }
        QStringList result;
        for (auto i = start + 1; i < lines.size() && !lines[i].isEmpty(); ++i) {
            result.append(lines[i]);
        }
        return result;
    }

    QString log() const { return readTextFile(ws.gLogFile).value_or(QString()); }

    QStringList shownTexts() const {
        QStringList result;
        for (const auto& box : s.dialogs.shown) {
            result.append(box.text);
        }
        return result;
    }

    QString wrapped(const QString& text) const { return modWrapMessage(text, s.dialogs); }

    // The month's commands are back in place and the editor is gone.
    void expectEditorClosed() const {
        EXPECT_FALSE(window->fraEditAgent->isVisible());
        for (QGroupBox* frame :
             {window->fraGenerate, window->fraViewEdit, window->fraPrint, window->fraExport}) {
            EXPECT_TRUE(frame->isVisible()) << frame->objectName().toStdString();
        }
        EXPECT_TRUE(window->cmdAdd->isEnabled());
        EXPECT_TRUE(window->txtFirstName->text().isEmpty());
        EXPECT_TRUE(window->txtLastName->text().isEmpty());
        EXPECT_TRUE(window->txtEmail->text().isEmpty());
    }

    void expectEditorOpen() const {
        EXPECT_TRUE(window->fraEditAgent->isVisible());
        EXPECT_FALSE(window->fraGenerate->isVisible());
        EXPECT_FALSE(window->cmdAdd->isEnabled());
        EXPECT_FALSE(window->lstAgents->isEnabled());
    }

    QTemporaryDir home;
    TestServices s;
    Workspace ws;
    std::unique_ptr<frmMain> window;
};

}  // namespace

// Adds in no order give a sorted list that matches the arrays, item i - 1 for agent i, and
// the constraints of the agents behind the new one move with them into the working file.
TEST_F(AgentCommands, AddsInAnyOrderKeepListArraysAndFileInStep) {
    open();
    window->cmdAdd->click();
    EXPECT_EQ(window->fraEditAgent->title(), QStringLiteral("Add an agent"));
    expectEditorOpen();
    EXPECT_TRUE(window->cmdOK->isDefault());
    enter("Sofia", "Delgado", "sofia@office.example");
    expectEditorClosed();

    // The vacation and the restriction are the last agent's; they must follow it down.
    ws.gVacation[1][9] = 1;
    ws.gRestriction[1][1][2] = 1;
    add("Patrick", "Brennan");
    // A particle in lower case is asked about; the user keeps it.
    s.dialogs.answers = {MsgAnswer::No};
    add("Ana", "de la Cruz");
    add("Wei", "Chen");

    const QStringList expected =
        texts({"Brennan, Patrick", "Chen, Wei", "de la Cruz, Ana", "Delgado, Sofia"});
    EXPECT_EQ(listItems(), expected);
    EXPECT_EQ(agents(), expected);
    EXPECT_EQ(ws.gAgentEmail[4], QStringLiteral("sofia@office.example"));
    EXPECT_EQ(ws.gAgentKey[2], QStringLiteral("Chen"));
    EXPECT_EQ(ws.gDirty, 1);
    EXPECT_EQ(window->fraAgents->title(), QStringLiteral("Agent list (4 agents)"));
    ASSERT_EQ(s.dialogs.shown.size(), 1U);
    EXPECT_EQ(s.dialogs.shown[0].icon, MsgIcon::Question);

    EXPECT_EQ(section("Agents"), texts({"1=Brennan|Patrick|", "2=Chen|Wei|", "3=de la Cruz|Ana|",
                                        "4=Delgado|Sofia|sofia@office.example"}));
    EXPECT_EQ(section("Vacations"), texts({"1=4|9"}));
    EXPECT_EQ(section("Restrictions"), texts({"1=4|1|2"}));
    EXPECT_TRUE(
        log().contains(QStringLiteral("]     Adding Ana de la Cruz to the agent list\r\n")));
}

// A change is a removal and a fresh insertion: the agent lands where its new name sorts, its
// vacations and restrictions with it, and a change of the address alone still goes through.
TEST_F(AgentCommands, ChangeMovesTheAgentWithItsConstraints) {
    withAgents({{"Brennan", "Patrick"}, {"Chen", "Wei"}, {"Delgado", "Sofia"}});
    ws.gVacation[1][3] = ws.gVacation[1][31] = 1;
    ws.gRestriction[1][2][4] = 1;
    ws.gVacation[3][9] = 1;
    open();

    window->lstAgents->setCurrentRow(0);
    window->cmdChange->click();
    EXPECT_EQ(window->fraEditAgent->title(), QStringLiteral("Edit an agent"));
    expectEditorOpen();
    EXPECT_EQ(window->txtFirstName->text(), QStringLiteral("Patrick"));
    EXPECT_EQ(window->txtLastName->text(), QStringLiteral("Brennan"));
    enter("Patrick", "Young", "pat@office.example");
    expectEditorClosed();

    EXPECT_EQ(listItems(), texts({"Chen, Wei", "Delgado, Sofia", "Young, Patrick"}));
    EXPECT_EQ(agents(), listItems());
    EXPECT_EQ(ws.gAgentEditIndex, 2);
    EXPECT_EQ(ws.gAgentEmail[3], QStringLiteral("pat@office.example"));
    EXPECT_EQ(ws.gVacation[3][3], 1);
    EXPECT_EQ(ws.gVacation[3][31], 1);
    EXPECT_EQ(ws.gRestriction[3][2][4], 1);
    EXPECT_EQ(ws.gVacation[1][3], 0);
    EXPECT_EQ(ws.gRestriction[1][2][4], 0);
    EXPECT_EQ(section("Vacations"), texts({"1=2|9", "2=3|3", "3=3|31"}));
    EXPECT_EQ(section("Restrictions"), texts({"1=3|2|4"}));
    EXPECT_EQ(ws.gAgentKey[3], QStringLiteral("Young"));
    EXPECT_TRUE(
        log().contains(QStringLiteral("]     Editing Patrick Young in the agent list\r\n")));

    // Only the address: the agent's own row is no duplicate.
    change(0, "Wei", "Chen", "wei@office.example");
    EXPECT_TRUE(s.dialogs.shown.empty());
    EXPECT_EQ(agents(), texts({"Chen, Wei", "Delgado, Sofia", "Young, Patrick"}));
    EXPECT_EQ(ws.gAgentEmail[1], QStringLiteral("wei@office.example"));
    EXPECT_EQ(section("Agents"), texts({"1=Chen|Wei|wei@office.example", "2=Delgado|Sofia|",
                                        "3=Young|Patrick|pat@office.example"}));
}

// Deleting asks first, then closes the gap and chooses the agent that took the place, or the
// new last one; the only agent's going leaves Add alone.
TEST_F(AgentCommands, DeleteAsksAndClosesTheGap) {
    struct Case {
        const char* what;
        int row;
        const char* names;
        QStringList items;
        int selected;
        QStringList vacations;
    };
    const Case cases[] = {
        {"first", 0, "Patrick Brennan", texts({"Chen, Wei", "Delgado, Sofia"}), 0,
         texts({"1=1|4", "2=2|9"})},
        {"middle", 1, "Wei Chen", texts({"Brennan, Patrick", "Delgado, Sofia"}), 1,
         texts({"1=1|3", "2=2|9"})},
        {"last", 2, "Sofia Delgado", texts({"Brennan, Patrick", "Chen, Wei"}), 1,
         texts({"1=1|3", "2=2|4"})},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        ws = Workspace();
        s.dialogs.shown.clear();
        SetUp();
        withAgents({{"Brennan", "Patrick"}, {"Chen", "Wei"}, {"Delgado", "Sofia"}});
        ws.gVacation[1][3] = ws.gVacation[2][4] = ws.gVacation[3][9] = 1;
        ws.gHasVacations = 1;
        open();
        window->lstAgents->setCurrentRow(c.row);
        s.dialogs.answers = {MsgAnswer::Yes};
        window->cmdDelete->click();

        const QString names = QString::fromUtf8(c.names);
        ASSERT_EQ(s.dialogs.shown.size(), 1U);
        EXPECT_EQ(s.dialogs.shown[0].text,
                  wrapped(QStringLiteral("Deleting an agent will erase any vacations and shift "
                                         "restrictions.  Are you sure you want to delete ") +
                          names + QStringLiteral("?")));
        EXPECT_EQ(s.dialogs.shown[0].icon, MsgIcon::Question);
        EXPECT_EQ(s.dialogs.shown[0].buttons, MsgButtons::YesNo);
        EXPECT_EQ(s.dialogs.shown[0].defaultButton, 2);
        EXPECT_EQ(listItems(), c.items);
        EXPECT_EQ(agents(), c.items);
        EXPECT_EQ(ws.gVacation.size(), 3U);
        EXPECT_EQ(window->lstAgents->currentRow(), c.selected);
        EXPECT_EQ(ws.gSelectedAgent, c.selected);
        EXPECT_EQ(ws.gDirty, 1);
        EXPECT_EQ(window->fraAgents->title(), QStringLiteral("Agent list (2 agents)"));
        EXPECT_EQ(section("Vacations"), c.vacations);
        EXPECT_TRUE(
            log().contains(QStringLiteral("]     Deleting ") + names + QStringLiteral("\r\n")));
    }

    // A No changes nothing.
    s.dialogs.shown.clear();
    s.dialogs.answers = {MsgAnswer::No};
    window->cmdDelete->click();
    EXPECT_EQ(s.dialogs.shown.size(), 1U);
    EXPECT_EQ(agents(), texts({"Brennan, Patrick", "Chen, Wei"}));

    // The only agent goes: every command that needs an agent is disabled at once.
    ws = Workspace();
    SetUp();
    withAgents({{"Brennan", "Patrick"}});
    open();
    s.dialogs.answers = {MsgAnswer::Yes};
    window->cmdDelete->click();
    EXPECT_EQ(ws.gAgentCount, 0);
    EXPECT_EQ(window->lstAgents->count(), 0);
    EXPECT_EQ(window->fraAgents->title(), QStringLiteral("Agent list (no agents)"));
    for (QWidget* control :
         {static_cast<QWidget*>(window->cmdChange), static_cast<QWidget*>(window->cmdDelete),
          static_cast<QWidget*>(window->cmdVacations),
          static_cast<QWidget*>(window->cmdRestrictions),
          static_cast<QWidget*>(window->cmdHolidays), static_cast<QWidget*>(window->cmdGenerate),
          static_cast<QWidget*>(window->cmbGenerate), static_cast<QWidget*>(window->cmdNotes)}) {
        EXPECT_FALSE(control->isEnabled()) << control->objectName().toStdString();
    }
    EXPECT_TRUE(window->cmdAdd->isEnabled());
    EXPECT_EQ(section("Agents"), QStringList());
}

// What the edit refuses or questions, with the words shown and logged; every such edit counts
// as a change all the same.
TEST_F(AgentCommands, RefusalsAndTheCapitalsQuestion) {
    const QString enterBoth =
        QStringLiteral("Please enter the first and last name for this agent.");
    const QString capitals = QStringLiteral(
        "For more professional printed reports, only the first letter of each "
        "name should be capitalized.  Would you like to correct the name now?");
    struct Case {
        const char* what;
        int changeRow;  // -1 for an add
        const char* first;
        const char* last;
        std::vector<MsgAnswer> answers;
        QString shown;
        MsgIcon icon;
        bool staysOpen;
        const char* focus;  // the box the user is sent back to
        QStringList agentsAfter;
        const char* logged;
    };
    const QStringList office = texts({"Adams, Ann", "Chen, Wei", "Young, Yusuf"});
    const Case cases[] = {
        {"add without a last name",
         -1,
         "Kim",
         "",
         {},
         enterBoth,
         MsgIcon::Exclamation,
         true,
         "txtLastName",
         office,
         nullptr},
        {"change without a first name",
         1,
         "",
         "Chen",
         {},
         enterBoth,
         MsgIcon::Exclamation,
         true,
         "txtFirstName",
         office,
         nullptr},
        {"add of a name in other capitals",
         -1,
         "WEI",
         "chen",
         {},
         QStringLiteral("The list already contains a Wei Chen.  Please enter a different name."),
         MsgIcon::Exclamation,
         false,
         nullptr,
         office,
         "Agent list already contains a Wei Chen"},
        {"add before a vowel, logged with a",
         -1,
         "Ann",
         "Adams",
         {},
         QStringLiteral("The list already contains an Ann Adams.  Please enter a different name."),
         MsgIcon::Exclamation,
         false,
         nullptr,
         office,
         "Agent list already contains a Ann Adams"},
        {"change onto another agent",
         1,
         "ann",
         "ADAMS",
         {},
         QStringLiteral(
             "The agent list already contains an Ann Adams.  Please enter a different name."),
         MsgIcon::Exclamation,
         false,
         nullptr,
         office,
         "Agent list already contains an Ann Adams"},
        {"change onto a name with Y",
         1,
         "Yusuf",
         "Young",
         {},
         QStringLiteral(
             "The agent list already contains a Yusuf Young.  Please enter a different name."),
         MsgIcon::Exclamation,
         false,
         nullptr,
         office,
         "Agent list already contains a Yusuf Young"},
        {"inner capital, corrected",
         -1,
         "Ian",
         "McDonald",
         {MsgAnswer::Yes},
         capitals,
         MsgIcon::Question,
         true,
         "txtLastName",
         office,
         nullptr},
        {"lower-case first name, corrected",
         1,
         "wei",
         "Chen",
         {MsgAnswer::Yes},
         capitals,
         MsgIcon::Question,
         true,
         "txtFirstName",
         office,
         nullptr},
        {"inner capital, kept",
         -1,
         "Ian",
         "McDonald",
         {MsgAnswer::No},
         capitals,
         MsgIcon::Question,
         false,
         nullptr,
         texts({"Adams, Ann", "Chen, Wei", "McDonald, Ian", "Young, Yusuf"}),
         nullptr},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        ws = Workspace();
        s.dialogs.shown.clear();
        SetUp();
        withAgents({{"Adams", "Ann"}, {"Chen", "Wei"}, {"Young", "Yusuf"}});
        open();
        s.dialogs.answers.assign(c.answers.begin(), c.answers.end());
        if (c.changeRow < 0) {
            add(c.first, c.last);
        } else {
            change(c.changeRow, c.first, c.last);
        }

        EXPECT_EQ(shownTexts(), QStringList{wrapped(c.shown)});
        if (!s.dialogs.shown.empty()) {
            EXPECT_EQ(s.dialogs.shown[0].icon, c.icon);
        }
        EXPECT_EQ(ws.gDirty, 1);
        EXPECT_EQ(agents(), c.agentsAfter);
        EXPECT_EQ(listItems(), c.agentsAfter);
        if (c.staysOpen) {
            expectEditorOpen();
            EXPECT_EQ(window->txtFirstName->text(), QString::fromUtf8(c.first));
            EXPECT_EQ(window->focusWidget()->objectName(), QString::fromUtf8(c.focus));
        } else {
            expectEditorClosed();
        }
        if (c.logged != nullptr) {
            EXPECT_TRUE(log().contains(QStringLiteral("]     ") + QString::fromUtf8(c.logged) +
                                       QStringLiteral("\r\n")))
                << log().toStdString();
        }
    }
}

// Every command on an agent wants one chosen, Holidays and Notes too; with one chosen, the
// constraint buttons say which picker and which agent.
TEST_F(AgentCommands, CommandsOnAnAgentNeedOneChosen) {
    withAgents({{"Brennan", "Patrick"}, {"Chen", "Wei"}});
    open();
    struct Case {
        const char* button;
        int dayPickerMode;
        int dayPickerAgent;
        int restrictionAgent;
    };
    const Case cases[] = {
        {"cmdChange", -1, -1, -1},      {"cmdDelete", -1, -1, -1},  {"cmdVacations", 1, 2, -1},
        {"cmdRestrictions", -1, -1, 2}, {"cmdHolidays", 0, -1, -1}, {"cmdNotes", 2, -1, -1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.button);
        auto* button = window->findChild<QPushButton*>(QString::fromUtf8(c.button));
        ASSERT_NE(button, nullptr);

        ws.gDayPickerMode = ws.gDayPickerAgent = ws.gRestrictionAgent = -1;
        s.dialogs.shown.clear();
        window->lstAgents->setCurrentRow(-1);
        button->click();
        ASSERT_EQ(s.dialogs.shown.size(), 1U);
        EXPECT_EQ(s.dialogs.shown[0].text, wrapped(kSelectAnAgent));
        EXPECT_EQ(s.dialogs.shown[0].icon, MsgIcon::Exclamation);
        EXPECT_EQ(s.dialogs.shown[0].buttons, MsgButtons::OK);
        EXPECT_EQ(ws.gDayPickerMode, -1);
        EXPECT_EQ(ws.gDayPickerAgent, -1);
        EXPECT_EQ(ws.gRestrictionAgent, -1);
        EXPECT_EQ(ws.gAgentCount, 2);
        EXPECT_FALSE(window->fraEditAgent->isVisible());

        if (c.dayPickerMode != -1 || c.restrictionAgent != -1) {
            s.dialogs.shown.clear();
            window->lstAgents->setCurrentRow(1);
            button->click();
            EXPECT_TRUE(s.dialogs.shown.empty());
            EXPECT_EQ(ws.gDayPickerMode, c.dayPickerMode);
            EXPECT_EQ(ws.gDayPickerAgent, c.dayPickerAgent);
            EXPECT_EQ(ws.gRestrictionAgent, c.restrictionAgent);
        }
    }
}

// Cancel puts the window back as it was and touches nothing else: no agent, no change flag,
// no working file.
TEST_F(AgentCommands, CancelLeavesEverythingAsItWas) {
    withAgents({{"Brennan", "Patrick"}, {"Chen", "Wei"}});
    open();
    for (const int row : {-1, 1}) {
        SCOPED_TRACE(row);
        if (row < 0) {
            window->cmdAdd->click();
        } else {
            window->lstAgents->setCurrentRow(row);
            window->cmdChange->click();
        }
        window->txtFirstName->setText(QStringLiteral("Zoe"));
        window->txtLastName->setText(QStringLiteral("Abbott"));
        window->txtEmail->setText(QStringLiteral("zoe@office.example"));
        window->cmdCancel->click();
        expectEditorClosed();
        EXPECT_EQ(agents(), texts({"Brennan, Patrick", "Chen, Wei"}));
        EXPECT_EQ(listItems(), agents());
        EXPECT_FALSE(ws.gDirty.has_value());
        EXPECT_FALSE(QFile::exists(ws.gConfigFile));
    }
}

// The underline marks an address the mail system resolved; typing in the box takes it off.
// With no mail system wired, nothing resolves and the typed address stays as it is.
TEST_F(AgentCommands, TypingTakesTheResolvedMarkOff) {
    open();
    window->cmdAdd->click();
    window->txtFirstName->setText(QStringLiteral("Ann"));
    window->txtLastName->setText(QStringLiteral("Adams"));
    window->cmdResolveName->click();
    EXPECT_TRUE(window->txtEmail->text().isEmpty());
    EXPECT_FALSE(window->txtEmail->font().underline());

    QFont resolved = window->txtEmail->font();
    resolved.setUnderline(true);
    window->txtEmail->setFont(resolved);
    window->txtEmail->setFocus();
    QTest::keyClicks(window->txtEmail, QStringLiteral("ann@office.example"));
    EXPECT_FALSE(window->txtEmail->font().underline());
    window->cmdOK->click();
    EXPECT_EQ(ws.gAgentEmail[1], QStringLiteral("ann@office.example"));
}
