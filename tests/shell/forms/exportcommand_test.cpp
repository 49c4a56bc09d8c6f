#include "core/model/leaveempty.h"
#include "core/model/workspace.h"
#include "core/services/mailaccounts.h"
#include "core/services/textfile.h"
#include "mailserver.h"
#include "mainwindow.h"
#include "offices.h"

#include <QTimer>

#include <gtest/gtest.h>

// The window's close box, pressed while the meeting requests go to a server that answers
// each after a while and refuses the first agent's, stops the export at once: nothing is
// sent after the close, the results question never comes, the "Leave empty" cell is back
// before the schedule is saved, and the close's own road follows, its closing line the
// log's last.
TEST(ExportCommand, ClosingTheWindowStopsTheExportBeforeTheCloseRoad) {
    MainWindow w;
    makeOffice(w.ws, 2027, 1, 4, w.home.path());
    for (int a = 1; a <= 4; ++a) {
        w.ws.gAgentEmail[a] = QStringLiteral("agent%1@example.org").arg(a);
    }
    dealInTurn(w.ws);
    w.ws.gShiftText.fill({QString(), QStringLiteral("9am-5pm")});
    w.ws.schedule(4, 1, 0) = leaveEmptyText();
    w.ws.gScheduleGenerated = 1;
    w.ws.gDirty = 1;
    w.ws.chkPrint = {0, 0, 0, 0, 1, 0};
    const QString received = w.home.filePath(QStringLiteral("received.jsonl"));
    MailServer server(received, texts({"--delay", "0.2", "--refuse", "agent1@example.org"}));
    QString& config = w.s.ctx.launch.mailConfig = w.home.filePath(QStringLiteral("msmtprc"));
    writeTextFile(config, QStringLiteral("account o\nhost 127.0.0.1\nport %1\nfrom d@example.org\n")
                              .arg(server.port));
    readMailFacts(w.s.ctx.env, config);
    w.s.dialogs.answers = {MsgAnswer::Yes};
    w.s.dialogs.fileAnswers = {w.home.filePath(QStringLiteral("saved.dko"))};
    QSignalSpy ends(&w.open(), &frmMain::programEnds);
    const auto sent = [&] { return fileText(received).count(u'\n'); };
    qsizetype sentAtClose = -1;
    QTimer closer;
    QObject::connect(&closer, &QTimer::timeout, [&] {
        if (sentAtClose < 0 && sent() >= 6) {
            sentAtClose = sent();
            w.window->close();
        }
    });
    closer.start(20);

    QTest::mouseClick(w.control<QPushButton>("cmdExport"), Qt::LeftButton);

    // Of the 22 requests for the days the others hold, some were never sent.
    EXPECT_TRUE(sentAtClose >= 6 && sent() == sentAtClose && sent() < 22) << sent();
    EXPECT_EQ(w.ws.schedule(4, 1, 0), leaveEmptyText());
    EXPECT_TRUE(
        fileText(w.home.filePath(QStringLiteral("saved.dko"))).contains(u"|Leave empty\r\n"));
    ASSERT_EQ(w.s.dialogs.shown.size(), 1U);
    EXPECT_EQ(w.s.dialogs.shown[0].buttons, MsgButtons::YesNoCancel);  // the close's question
    EXPECT_EQ(ends.count(), 1);
    const QString log = fileText(w.ws.gLogFile);
    EXPECT_LT(log.indexOf(u"Failed to create"), log.indexOf(u"Unloading the main form"));
    EXPECT_TRUE(log.section(QStringLiteral("\r\n"), -2, -2).contains(u"Closing Desko40.log on "));
}
