#include "core/services/textfile.h"
#include "environment/forms/frmAbout.h"
#include "environment/forms/frmCredit.h"
#include "mainwindow.h"
#include "persistence/configdump.h"
#include "shell/forms/programstart.h"

#include <QDesktopServices>
#include <QKeyEvent>
#include <QLockFile>
#include <QTimer>
#include <QUrl>

#include <gtest/gtest.h>

namespace {

// Tick by tick: the logo in colour (N) on its plate (P), a blink, the embossed logo (E) low,
// a blink, the embossed logo risen (R) to the first one's place; the fifteenth ends it.
TEST(Splash, ShowsTheLogoInTwoLooksAndEndsAtTheFifteenthTick) {
    frmCredit splash(7500);
    splash.timSplash.stop();
    splash.show();
    const char* const scenes[] = {"NP", "NP", "NP", "NP",  "NP",  "",    "EP", "EP",
                                  "EP", "EP", "",   "EPR", "EPR", "EPR", "EPR"};
    for (const char* expected : scenes) {
        const std::string seen =
            std::string(splash.picLogoNormal->isVisible() ? "N" : "") +
            (splash.picLogoEmbossed->isVisible() ? "E" : "") +
            (splash.picBlank->isVisible() ? "P" : "") +
            (splash.picLogoEmbossed->y() == splash.picLogoNormal->y() ? "R" : "");
        EXPECT_EQ(seen, expected);
        EXPECT_TRUE(splash.isVisible());
        splash.timSplash_Timer();
    }
    EXPECT_FALSE(splash.isVisible());
    EXPECT_FALSE(splash.openDumpOffered());
}

// Only a key with Shift alone held, or Shift itself, cuts the splash short.
TEST(Splash, ShiftAloneCutsItShortAndAsksForTheDumpsOpening) {
    const std::tuple<Qt::Key, Qt::KeyboardModifiers, bool> presses[] = {
        {Qt::Key_A, Qt::NoModifier, false},
        {Qt::Key_A, Qt::ShiftModifier | Qt::ControlModifier, false},
        {Qt::Key_Alt, Qt::ShiftModifier | Qt::AltModifier, false},
        {Qt::Key_A, Qt::ShiftModifier, true},
        {Qt::Key_Shift, Qt::ShiftModifier, true},
        {Qt::Key_Shift, Qt::NoModifier, true}};
    for (const auto& [key, held, cut] : presses) {
        frmCredit splash(7500);
        splash.show();
        QKeyEvent event(QEvent::KeyPress, key, held);
        QApplication::sendEvent(&splash, &event);
        EXPECT_EQ(splash.isVisible(), !cut) << key;
        EXPECT_EQ(splash.openDumpOffered(), cut) << key;
    }
}

// The key on the splash brings out the opening of a dump for that run; a dump made by the
// Help menu and opened again refills the agent list. The next start hides the item again.
TEST(HelpMenu, TheKeyOnTheSplashOffersTheDumpsOpeningForThatRunAlone) {
    MainWindow w;
    ASSERT_TRUE(writeTextFile(w.ws.gConfigFile, golden("office.ini")));
    w.s.ctx.launch.home = w.home.path();
    w.s.ctx.launch.splashMs = 7500;
    {
        QTimer::singleShot(0, [] {
            for (QWidget* top : QApplication::topLevelWidgets()) {
                if (top->objectName() == QStringLiteral("frmCredit") && top->isVisible()) {
                    QTest::keyPress(top, Qt::Key_Shift, Qt::ShiftModifier);
                }
            }
        });
        const DeskoRun run = modProgramStart(w.ws, w.s.ctx, QStringLiteral("desko40"), {});
        ASSERT_NE(run.main, nullptr);
        EXPECT_TRUE(run.main->mnuHOpenDump->isVisible());

        const QString dump = w.home.filePath(QStringLiteral("Desko40.dmp"));
        w.s.dialogs.fileAnswers = {dump, dump};
        run.main->mnuHDump->trigger();
        EXPECT_EQ(fileText(dump), dumpText(fileText(w.ws.gConfigFile), fileText(w.ws.gLogFile)));
        ASSERT_TRUE(writeTextFile(w.ws.gConfigFile, QString()));
        run.main->mnuHOpenDump->trigger();
        ASSERT_EQ(run.main->lstAgents->count(), 2);
        EXPECT_EQ(run.main->lstAgents->item(1)->text(), QStringLiteral("Baker, Bo"));
    }
    w.s.ctx.launch.splashMs = 0;
    const DeskoRun next = modProgramStart(w.ws, w.s.ctx, QStringLiteral("desko40"), {});
    ASSERT_NE(next.main, nullptr);
    EXPECT_FALSE(next.main->mnuHOpenDump->isVisible());
}

// The About box shows the version. A key that types a character, or a click, closes it and
// gives the main window back; "e" or "E" first rolls the credits up a pixel a tenth of a
// second, on and on, until a click or another key.
TEST(HelpMenu, AboutClosesOnAKeyOrAClickAndRollsTheCreditsOnE) {
    MainWindow w;
    w.open();
    const std::pair<Qt::Key, char> keys[] = {{Qt::Key_X, 0},
                                             {Qt::Key_Return, 0},
                                             {Qt::Key_Escape, 0},
                                             {Qt::Key_E, 'e'},
                                             {Qt::Key_E, 'E'}};
    for (const auto& [key, letter] : keys) {
        w.main->mnuHAbout->trigger();
        auto* about = w.control<frmAbout>("frmAbout");
        ASSERT_TRUE(about->isVisible());
        EXPECT_TRUE(w.busy());
        EXPECT_EQ(about->labVersion->text(), QStringLiteral("rev 4.0.10"));
        QTest::keyClick(about, Qt::Key_Shift);
        EXPECT_TRUE(about->isVisible());

        const QDateTime start = w.s.clock.time;
        int spins = 0;
        QTimer roll;
        // Seven seconds on, the credits have risen 70 pixels from where they came in.
        QObject::connect(&roll, &QTimer::timeout, [&] {
            const qint64 tenths = start.msecsTo(w.s.clock.time) / 100;
            // A roll that lets no time pass is stopped all the same.
            if (tenths < 70 && ++spins < 100000) {
                return;
            }
            roll.stop();
            EXPECT_EQ(about->labCredits->y(), 150 - (tenths - 1));
            EXPECT_FALSE(about->picArrow->isVisible());
            EXPECT_TRUE(about->labCredits->text().startsWith(QStringLiteral("Desko for Windows")));
            letter == 'e' ? QTest::mouseClick(about->labCredits, Qt::LeftButton)
                          : QTest::keyClick(about, Qt::Key_Q);
        });
        roll.start(0);
        if (letter == 0) {
            QTest::keyClick(about, key);
        } else {
            QTest::keyClick(about, letter);
        }
        EXPECT_EQ(w.s.clock.time != start, letter != 0);
        EXPECT_FALSE(about->isVisible()) << key;
        EXPECT_FALSE(w.busy());
    }
}

class ViewerStandIn : public QObject {
    Q_OBJECT

public:
    QList<QUrl> opened;

public slots:
    void open(const QUrl& url) { opened.append(url); }
};

TEST(HelpMenu, HelpOpensTheFirstPageInTheDesktopsViewer) {
    MainWindow w;
    w.s.ctx.launch.helpFile = w.home.filePath(QStringLiteral("help/index.html"));
    w.open();
    ViewerStandIn viewer;
    QDesktopServices::setUrlHandler(QStringLiteral("file"), &viewer, "open");
    w.main->mnuHHelp->trigger();
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    EXPECT_EQ(viewer.opened, QList<QUrl>{QUrl::fromLocalFile(w.s.ctx.launch.helpFile)});
}

}  // namespace

#include "helpforms_test.moc"
