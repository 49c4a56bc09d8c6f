#include "core/model/leaveempty.h"
#include "core/model/workspace.h"
#include "core/services/textfile.h"
#include "mainwindow.h"
#include "offices.h"

#include <QDir>

#include <gtest/gtest.h>

// Export with E-mail and Calendar Creator ticked and no mail account: the message, the
// e-mail box unticked on the screen, the file written, and the window back in its normal
// face with its "Leave empty" slot as it was.
TEST(ExportCommand, UnticksWhatCannotGoAndWritesTheFile) {
    MainWindow w;
    setAgents(w.ws, {{"Brennan", "Pat"}, {"Chen", "Wei"}});
    setTable(w.ws, 1, 1);
    dealInTurn(w.ws);
    for (int day = 0; day < kWeekdays; ++day) {
        w.ws.gShiftText[day][1] = QStringLiteral("9am-5pm");
    }
    w.ws.schedule(4, 1, 0) = leaveEmptyText();
    w.ws.gScheduleGenerated = 1;
    w.ws.chkPrint = {0, 0, 0, 1, 0, 1};
    frmMain& main = w.open();
    const QString csv = w.home.filePath(QStringLiteral("2027 January.csv"));
    w.s.dialogs.fileAnswers = {csv};
    bool statusShown = false;
    w.s.dialogs.whileShown = [&] { statusShown = statusShown || main.fraStatus->isVisible(); };

    QTest::mouseClick(w.control<QPushButton>("cmdExport"), Qt::LeftButton);

    EXPECT_EQ(
        w.s.dialogs.texts(),
        w.s.dialogs.wrapped({QStringLiteral("No MAPI profiles could be found on this system.  "
                                            "Please check your e-mail configuration and "
                                            "retry.")}));
    EXPECT_FALSE(statusShown);  // the pre-flight asks before anything changes on the screen
    EXPECT_FALSE(w.control<QCheckBox>("chkPrint(3)")->isChecked());
    EXPECT_TRUE(w.control<QCheckBox>("chkPrint(5)")->isChecked());
    EXPECT_TRUE(fileText(csv).startsWith(QStringLiteral("1/1/2027,9:00,17:00,Brennan,1,")));
    EXPECT_TRUE(logged(w.ws, QStringLiteral("Exporting the schedule for January")));
    EXPECT_EQ(w.ws.schedule(4, 1, 0), leaveEmptyText());
    EXPECT_TRUE(main.fraDate->isVisible());
    EXPECT_FALSE(main.fraStatus->isVisible());
    EXPECT_FALSE(w.busy());
}

// The resolve button looks the names up in the address book; of several addresses the user
// chooses one, which the box shows underlined.
TEST(ExportCommand, ResolveButtonOffersTheAddressesOfTheName) {
    MainWindow w;
    QDir(w.home.path()).mkdir(QStringLiteral("book"));
    writeTextFile(w.home.filePath(QStringLiteral("book/chen.vcf")),
                  QStringLiteral("BEGIN:VCARD\nFN:Wei Chen\nN:Chen;Wei\nEMAIL:wei@work.example\n"
                                 "EMAIL:wei@home.example\nEND:VCARD\n"));
    w.s.ctx.launch.addressBook = w.home.filePath(QStringLiteral("book"));
    w.s.dialogs.choiceAnswers = {1};
    frmMain& main = w.open();
    QTest::mouseClick(w.control<QPushButton>("cmdAdd"), Qt::LeftButton);
    QTest::keyClicks(main.txtFirstName, QStringLiteral("Wei"));
    QTest::keyClicks(main.txtLastName, QStringLiteral("Chen"));

    QTest::mouseClick(w.control<QPushButton>("cmdResolveName"), Qt::LeftButton);

    ASSERT_EQ(w.s.dialogs.choicesShown.size(), 1U);
    EXPECT_EQ(main.txtEmail->text(), QStringLiteral("wei@home.example"));
    EXPECT_TRUE(main.txtEmail->font().underline());
}
