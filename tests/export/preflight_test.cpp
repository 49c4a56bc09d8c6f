#include "export/preflight.h"

#include "core/model/workspace.h"
#include "export/exportview.h"
#include "fakes.h"
#include "offices.h"

#include <gtest/gtest.h>

namespace {

// A box as the user sees it: a message alone, or a head, a list and a tail.
struct Box {
    const char* head;
    std::vector<const char*> items = {};
    const char* tail = nullptr;

    QString text(const ScriptedDialogs& dialogs) const {
        const QStringList ends = dialogs.wrapped(texts({head, tail ? tail : ""}));
        QString list;
        for (const char* item : items) {
            list += QStringLiteral("\r\n     ") + QString::fromUtf8(item);
        }
        return tail ? ends[0] + QStringLiteral("\r\n") + list + QStringLiteral("\r\n\r\n") + ends[1]
                    : ends[0];
    }
};

const char* const kGoOn = "Are you sure you want to continue?";
const Box kNoAccount{
    "No MAPI profiles could be found on this system.  Please check your e-mail "
    "configuration and retry."};
const Box kNoSender{
    "Microsoft Outlook could not be found on this system.  Please check your "
    "configuration and retry."};
const Box kOneAgent{"The following agent does not have an e-mail address configured:",
                    {"Ann1 Agent001"},
                    "The schedule will not be sent to this agent.  Are you sure you want to "
                    "continue?"};
const Box kTwoAgents{"The following agents do not have e-mail addresses configured:",
                     {"Ann1 Agent001", "Ann2 Agent002"},
                     "The schedule will not be sent to these agents.  Are you sure you want to "
                     "continue?"};
const Box kOneOutlookAgent{
    "The following agent does not have an Outlook e-mail address "
    "configured:",
    {"Ann1 Agent001"},
    "Appointments will not be created for this agent.  Are you sure you "
    "want to continue?"};
const Box kOutlookShift{
    "The following shift could not be interpreted.  Non-standard shift "
    "notations will prevent Outlook appointments from being created.  An "
    "acceptable format would be '9am-11:30am'.",
    {"Sunday, Closed"},
    kGoOn};
const Box kCreatorShifts{
    "The following shifts could not be interpreted.  Non-standard shift "
    "notations will prevent Calendar Creator entries from being created.  "
    "An acceptable format would be '9am-11:30am'.",
    {"Sunday, Closed", "Saturday, Noon"},
    kGoOn};

}  // namespace

// Which export boxes the pre-flight leaves ticked, what it asks in which words, and where a
// No or a cancelled file dialog stops the export before anything goes out.
TEST(ExportPreflight, AsksAndRefusesBeforeAnythingGoesOut) {
    constexpr MsgAnswer Yes = MsgAnswer::Yes;
    constexpr MsgAnswer No = MsgAnswer::No;
    const QString file = QStringLiteral("/x/2027 January.csv");
    struct Case {
        const char* ticked;  // the three export boxes before and after
        const char* left;
        bool account, sender;
        int withoutAddress;  // the first agents of three have no address
        int unreadShifts;    // Sunday's shift, then also Saturday's, cannot be read
        std::deque<MsgAnswer> answers;
        std::optional<QString> file;
        std::vector<Box> boxes;
        bool goesOn;
    };
    const Case cases[] = {
        {"000", "000", false, false, 3, 2, {}, {}, {}, false},
        // Without an account or a sender the box is unticked, and the export runs empty.
        {"100", "000", false, false, 0, 0, {}, {}, {kNoAccount}, true},
        {"010", "000", true, false, 1, 1, {}, {}, {kNoSender}, true},
        // One agent is told in the singular, two in the plural; No stops.
        {"100", "100", true, true, 1, 0, {No}, {}, {kOneAgent}, false},
        {"100", "100", true, true, 2, 2, {Yes}, {}, {kTwoAgents}, true},
        // Meeting requests: the agents, then every weekly shift, used this month or not.
        {"010", "010", true, true, 1, 1, {Yes, No}, {}, {kOneOutlookAgent, kOutlookShift}, false},
        // The file comes first; its Cancel stops after the other questions were answered.
        {"011", "011", true, true, 0, 1, {Yes}, {}, {kOutlookShift}, false},
        {"001", "001", true, true, 0, 2, {Yes}, file, {kCreatorShifts}, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.ticked);
        TestServices s;
        Workspace ws;
        makeOffice(ws, 2027, 1, 3);
        ws.gShiftText.fill({QString(), QStringLiteral("9am-5pm")});
        ws.gShiftText[0][1] = c.unreadShifts >= 1 ? QStringLiteral("Closed") : ws.gShiftText[0][1];
        ws.gShiftText[6][1] = c.unreadShifts >= 2 ? QStringLiteral("Noon") : ws.gShiftText[6][1];
        for (int agent = c.withoutAddress + 1; agent <= 3; ++agent) {
            ws.gAgentEmail[agent] = QStringLiteral("a%1@example.org").arg(agent);
        }
        for (int box = 0; box < 3; ++box) {
            ws.chkPrint[3 + box] = c.ticked[box] - '0';
        }
        s.ctx.env.gMapiProfile = c.account ? QStringLiteral("office") : QString();
        s.ctx.env.gOutlookInstalled = c.sender;
        s.dialogs.answers = c.answers;
        s.dialogs.fileAnswers = {c.file};
        HeadlessExportView view;

        const std::optional<ExportPlan> plan = exportPreflight(ws, s.ctx, view);

        EXPECT_EQ(plan.has_value(), c.goesOn);
        QStringList expected;
        for (const Box& box : c.boxes) {
            expected.append(box.text(s.dialogs));
        }
        EXPECT_EQ(s.dialogs.texts(), expected);
        EXPECT_EQ(
            QStringLiteral("%1%2%3").arg(ws.chkPrint[3]).arg(ws.chkPrint[4]).arg(ws.chkPrint[5]),
            QString::fromUtf8(c.left));
        if (plan && c.file) {
            const FileDialog& asked = s.dialogs.filesShown.at(0).request;
            EXPECT_EQ(plan->creatorFile + asked.title + asked.fileName,
                      file + QStringLiteral("Export to Calendar Creator format2027 January.csv"));
            EXPECT_TRUE(asked.promptOverwrite);
        }
    }
}
