#include "export/preflight.h"

#include "core/model/workspace.h"
#include "fakes.h"
#include "offices.h"
#include "recordingexportview.h"

#include <gtest/gtest.h>

namespace {

const char* const kGoOn = "Are you sure you want to continue?";

// A list question as the user sees it: head, the items, tail.
QString listBox(const ScriptedDialogs& dialogs, const char* head,
                std::initializer_list<const char*> items, const char* tail) {
    QString list;
    for (const QString& item : texts(items)) {
        list += QStringLiteral("\r\n     ") + item;
    }
    const QStringList ends = dialogs.wrapped({QString::fromUtf8(head), QString::fromUtf8(tail)});
    return ends[0] + QStringLiteral("\r\n") + list + QStringLiteral("\r\n\r\n") + ends[1];
}

}  // namespace

// Which boxes the pre-flight leaves ticked, what it asks in which words, and where a No or a
// cancelled file dialog stops the export before anything goes out.
TEST(ExportPreflight, AsksAndRefusesBeforeAnythingGoesOut) {
    const char* noAddress = "The following agent does not have an e-mail address configured:";
    const char* noAddresses = "The following agents do not have e-mail addresses configured:";
    const char* notSentOne =
        "The schedule will not be sent to this agent.  Are you sure you want to continue?";
    const char* notSentMany =
        "The schedule will not be sent to these agents.  Are you sure you want to continue?";
    const char* noOutlook =
        "The following agent does not have an Outlook e-mail address configured:";
    const char* noAppointments =
        "Appointments will not be created for this agent.  Are you sure you want to continue?";
    const char* outlookShift =
        "The following shift could not be interpreted.  Non-standard shift notations will "
        "prevent Outlook appointments from being created.  An acceptable format would be "
        "'9am-11:30am'.";
    const char* creatorShifts =
        "The following shifts could not be interpreted.  Non-standard shift notations will "
        "prevent Calendar Creator entries from being created.  An acceptable format would be "
        "'9am-11:30am'.";
    struct Case {
        const char* ticked;  // the three export boxes
        bool account, sender;
        int withoutAddress;  // of the three agents, the first ones have no address
        int unreadShifts;    // Sunday's shift, then also Saturday's, cannot be read
        std::deque<MsgAnswer> answers;
        std::optional<QString> file;
        std::function<QStringList(const ScriptedDialogs&)> texts;
        const char* left;  // the boxes after the pre-flight
        bool goesOn;
    };
    const std::vector<Case> cases = {
        {"000", false, false, 3, 2, {}, {}, [](auto&) { return QStringList(); }, "000", false},
        // No account: the one message, and the export goes on with nothing in it.
        {"100",
         false,
         false,
         0,
         0,
         {},
         {},
         [](auto& d) {
             return d.wrapped(
                 texts({"No MAPI profiles could be found on this system.  Please check your "
                        "e-mail configuration and retry."}));
         },
         "000",
         true},
        {"010",
         true,
         false,
         1,
         1,
         {},
         {},
         [](auto& d) {
             return d.wrapped(
                 texts({"Microsoft Outlook could not be found on this system.  Please check "
                        "your configuration and retry."}));
         },
         "000",
         true},
        // One agent without an address is told in the singular, two in the plural; No stops.
        {"100",
         true,
         true,
         1,
         0,
         {MsgAnswer::No},
         {},
         [&](auto& d) { return QStringList{listBox(d, noAddress, {"Ann1 Agent001"}, notSentOne)}; },
         "100",
         false},
        {"100",
         true,
         true,
         2,
         2,
         {MsgAnswer::Yes},
         {},
         [&](auto& d) {
             return QStringList{
                 listBox(d, noAddresses, {"Ann1 Agent001", "Ann2 Agent002"}, notSentMany)};
         },
         "100",
         true},
        // Meeting requests: the agents, then the weekly shifts, used this month or not.
        {"010",
         true,
         true,
         1,
         1,
         {MsgAnswer::Yes, MsgAnswer::No},
         {},
         [&](auto& d) {
             return QStringList{listBox(d, noOutlook, {"Ann1 Agent001"}, noAppointments),
                                listBox(d, outlookShift, {"Sunday, Closed"}, kGoOn)};
         },
         "010",
         false},
        // The file comes first; a Cancel there stops after the questions were answered Yes.
        {"011",
         true,
         true,
         0,
         1,
         {MsgAnswer::Yes},
         {},
         [&](auto& d) { return QStringList{listBox(d, outlookShift, {"Sunday, Closed"}, kGoOn)}; },
         "011",
         false},
        {"001",
         true,
         true,
         0,
         2,
         {MsgAnswer::Yes},
         QStringLiteral("/x/2027 January.csv"),
         [&](auto& d) {
             return QStringList{
                 listBox(d, creatorShifts, {"Sunday, Closed", "Saturday, Noon"}, kGoOn)};
         },
         "001",
         true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.ticked);
        TestServices s;
        Workspace ws;
        makeOffice(ws, 2027, 1, 3);
        for (int day = 0; day < kWeekdays; ++day) {
            ws.gShiftText[day][1] = QStringLiteral("9am-5pm");
        }
        ws.gShiftText[0][1] = c.unreadShifts >= 1 ? QStringLiteral("Closed") : ws.gShiftText[0][1];
        ws.gShiftText[6][1] = c.unreadShifts >= 2 ? QStringLiteral("Noon") : ws.gShiftText[6][1];
        for (int agent = c.withoutAddress + 1; agent <= 3; ++agent) {
            ws.gAgentEmail[agent] = QStringLiteral("a%1@example.org").arg(agent);
        }
        for (int box = 0; box < 3; ++box) {
            ws.chkPrint[3 + box] = c.ticked[box] == '1' ? 1 : 0;
        }
        s.ctx.env.gMapiProfile = c.account ? QStringLiteral("office") : QString();
        s.ctx.env.gOutlookInstalled = c.sender;
        s.dialogs.answers = c.answers;
        s.dialogs.fileAnswers = {c.file};
        RecordingExportView view;

        const std::optional<ExportPlan> plan = exportPreflight(ws, s.ctx, view);

        EXPECT_EQ(plan.has_value(), c.goesOn);
        EXPECT_EQ(s.dialogs.texts(), c.texts(s.dialogs));
        const QString left =
            QStringLiteral("%1%2%3").arg(ws.chkPrint[3]).arg(ws.chkPrint[4]).arg(ws.chkPrint[5]);
        EXPECT_EQ(left, QString::fromUtf8(c.left));
        if (plan && c.file) {
            EXPECT_EQ(plan->creatorFile, *c.file);
            const FileDialog& asked = s.dialogs.filesShown.at(0).request;
            EXPECT_EQ(asked.fileName, QStringLiteral("2027 January.csv"));
            EXPECT_EQ(asked.title, QStringLiteral("Export to Calendar Creator format"));
            EXPECT_TRUE(asked.promptOverwrite);
        }
    }
}
