#include "core/model/leaveempty.h"
#include "core/model/workspace.h"
#include "core/services/textfile.h"
#include "export/exportcommand.h"
#include "export/mailsession.h"
#include "export/preflight.h"
#include "fakes.h"
#include "offices.h"
#include "recordingexportview.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

// A mail server that takes every message but refuses one recipient, and keeps what it took.
class FakeTransport final : public MailTransport {
public:
    explicit FakeTransport(QStringList& sent) : sent_(sent) {}
    std::optional<SendFailure> send(const QByteArray& message, const QString&,
                                    const QString& to) override {
        if (to == QLatin1String("a4@example.org")) {
            return SendFailure{550, QStringLiteral("550 No such user")};
        }
        sent_.append(QString::fromUtf8(message));
        return std::nullopt;
    }

private:
    QStringList& sent_;
};

// Four agents take January 2027's one daily shift in turn; Sunday's cannot be read. The
// second agent has no address, the third one no mail server would take.
struct Office {
    Office() {
        makeOffice(ws, 2027, 1, 4, home.path());
        for (int day = 0; day < kWeekdays; ++day) {
            ws.gShiftText[day][1] = day == 0 ? QStringLiteral("Closed") : QStringLiteral("9am-5pm");
        }
        dealInTurn(ws);
        ws.gAgentEmail = {QString(), QStringLiteral("a1@example.org"), QString(),
                          QStringLiteral("bad address@example.org"),
                          QStringLiteral("a4@example.org")};
        ws.gEmailBody = QStringLiteral("Your shifts:");
        ws.chkPrint = {0, 0, 0, 1, 1, 1};
        const QString config = home.filePath(QStringLiteral("msmtprc"));
        writeTextFile(config,
                      QStringLiteral("account office\nhost 127.0.0.1\nfrom d@example.org\n"));
        s.ctx.launch.mailConfig = config;
        s.ctx.env.gMapiProfile = QStringLiteral("office");
        s.ctx.env.gOutlookInstalled = true;
    }
    QTemporaryDir home;
    TestServices s;
    Workspace ws;
    QStringList sent;
    MailSession session{[this](const MailAccount&, const QString&) {
        return std::make_unique<FakeTransport>(sent);
    }};
};

int logCount(const Workspace& ws, const std::string& line) {
    const std::string log = logText(ws);
    int count = 0;
    for (std::size_t at = log.find(line); at != std::string::npos; at = log.find(line, at + 1)) {
        ++count;
    }
    return count;
}

}  // namespace

// Each channel reports a missing address, a refused address and a server's refusal; the
// calendar channel tells each agent's and each shift's failure once however often met. A
// "Leave empty" slot reaches no one and says so again afterwards.
TEST(ExportChannels, ReportEachFailureAndLeaveEmptySlotsAlone) {
    Office office;
    office.ws.schedule(9, 1, 0) = leaveEmptyText();  // the first agent's Saturday
    auto& dialogs = office.s.dialogs;
    const QString csv = office.home.filePath(QStringLiteral("out.csv"));
    dialogs.fileAnswers = {csv};
    dialogs.answers = {MsgAnswer::Yes, MsgAnswer::Yes, MsgAnswer::Yes,
                       MsgAnswer::Yes, MsgAnswer::Yes, MsgAnswer::OK,
                       MsgAnswer::Yes, MsgAnswer::OK,  MsgAnswer::No};
    RecordingExportView view;

    cmdExport(office.ws, office.s.ctx, view, office.session);

    const QStringList shown = dialogs.texts();
    ASSERT_EQ(shown.size(), 9);
    EXPECT_EQ(
        shown[5],
        dialogs.wrapped({QStringLiteral("\r\nFailed to send e-mail to Ann2 Agent002  (No e-mail "
                                        "address entered)\r\nFailed to send e-mail to bad "
                                        "address@example.org  (Not a usable e-mail "
                                        "address)\r\nFailed to send e-mail to a4@example.org  (550 "
                                        "No such user)")})[0]);
    EXPECT_EQ(shown[7], dialogs.wrapped({QStringLiteral(
                            "\r\nFailed to interpret the first shift on Sunday  "
                            "(Closed)\r\nFailed to create an Outlook appointment for Ann2 "
                            "Agent002  (No recipient name entered)\r\nFailed to create an "
                            "Outlook appointment for bad address@example.org  (Not a usable "
                            "e-mail address)\r\nFailed to create an Outlook appointment for "
                            "a4@example.org  (550 No such user)")})[0]);
    EXPECT_EQ(shown[8], dialogs.wrapped({QStringLiteral(
                            "At least one shift could not be exported to Calendar Creator "
                            "format.  Would you like to see the results?")})[0]);
    // The log names no one in the line of a failed request, and tells it once.
    EXPECT_EQ(logCount(office.ws,
                       "]     Failed to create Outlook appointment for  with error "
                       "550 (550 No such user)\r\n"),
              1);
    EXPECT_EQ(logCount(office.ws, "]     Failed to interpret the first shift on Sunday"), 2);
    // The first agent: one mail, and a request for each working day but the blanked 9th.
    ASSERT_FALSE(office.sent.isEmpty());
    EXPECT_FALSE(office.sent[0].contains(QStringLiteral("January 9 ")));
    EXPECT_TRUE(office.sent[0].contains(QStringLiteral("January 13  (Wednesday)  9am-5pm")));
    EXPECT_EQ(office.sent.filter(QStringLiteral("text/calendar")).size(), 6);
    EXPECT_EQ(office.ws.schedule(9, 1, 0), leaveEmptyText());
    EXPECT_FALSE(fileText(csv).contains(QStringLiteral("1/9/2027")));
    EXPECT_EQ(view.asked,
              texts({"begin: Exporting the schedule . . .",
                     "status: Exporting the schedule to e-mail . . .",
                     "bar: Exporting the schedule to Microsoft Outlook . . .", "no bar",
                     "status: Exporting the schedule to Calendar Creator format . . .", "end"}));
    EXPECT_GE(view.progress, 1.0);
}
