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

// The splash's pictures, tick by tick: the logo in colour, a blink, the logo embossed and
// low, a blink, the embossed logo risen to the place of the first; at the fifteenth tick the
// splash is gone.
TEST(Splash, ShowsTheLogoInTwoLooksAndEndsAtTheFifteenthTick) {
    frmCredit splash(7500);
    splash.timSplash.stop();
    splash.show();
    // For each tick: the logo in colour, the embossed logo, the plate, the embossed logo risen.
    const char* const scenes[] = {"NP", "NP", "NP", "NP",  "NP",  "",    "EP", "EP",
                                  "EP", "EP", "",   "EPR", "EPR", "EPR", "EPR"};
    for (int tick = 0; tick < 15; ++tick) {
        const QString scene = QString::fromLatin1(scenes[tick]);
        EXPECT_EQ(splash.picLogoNormal->isVisible(), scene.contains(QLatin1Char('N'))) << tick;
        EXPECT_EQ(splash.picLogoEmbossed->isVisible(), scene.contains(QLatin1Char('E'))) << tick;
        EXPECT_EQ(splash.picBlank->isVisible(), scene.contains(QLatin1Char('P'))) << tick;
        EXPECT_EQ(splash.picLogoEmbossed->y() == splash.picLogoNormal->y(),
                  scene.contains(QLatin1Char('R')))
            << tick;
        EXPECT_TRUE(splash.isVisible());
        splash.timSplash_Timer();
    }
    EXPECT_FALSE(splash.isVisible());
    EXPECT_FALSE(splash.openDumpOffered());
}

// Only a key with Shift alone held, or Shift itself, cuts the splash short. (A user who
// presses Shift first on the way to Ctrl+Shift cuts it with the Shift key's own press.)
TEST(Splash, ShiftAloneCutsItShortAndAsksForTheDumpsOpening) {
    const struct {
        Qt::Key key;
        Qt::KeyboardModifiers held;
        bool cut;
    } presses[] = {{Qt::Key_A, Qt::NoModifier, false},
                   {Qt::Key_Return, Qt::NoModifier, false},
                   {Qt::Key_A, Qt::ShiftModifier | Qt::ControlModifier, false},
                   {Qt::Key_Alt, Qt::ShiftModifier | Qt::AltModifier, false},
                   {Qt::Key_A, Qt::ShiftModifier, true},
                   {Qt::Key_Shift, Qt::ShiftModifier, true},
                   {Qt::Key_Shift, Qt::NoModifier, true}};
    for (const auto& press : presses) {
        frmCredit splash(7500);
        splash.show();
        QKeyEvent event(QEvent::KeyPress, press.key, press.held);
        QApplication::sendEvent(&splash, &event);
        EXPECT_EQ(splash.isVisible(), !press.cut) << press.key;
        EXPECT_EQ(splash.openDumpOffered(), press.cut) << press.key;
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

// A click or a key that types something closes the About box and gives the main window
// back; Shift alone does not.
TEST(HelpMenu, AboutShowsTheVersionAndAnyKeyOrClickClosesIt) {
    MainWindow w;
    w.open();
    const Qt::Key keys[] = {Qt::Key_X, Qt::Key_1, Qt::Key_Return, Qt::Key_Escape};
    for (const Qt::Key key : keys) {
        w.main->mnuHAbout->trigger();
        auto* about = w.control<frmAbout>("frmAbout");
        ASSERT_TRUE(about->isVisible());
        EXPECT_TRUE(w.busy());
        EXPECT_EQ(about->labVersion->text(), QStringLiteral("rev 4.0.10"));
        QTest::keyClick(about, Qt::Key_Shift);
        EXPECT_TRUE(about->isVisible());
        QTest::keyClick(about, key);
        EXPECT_FALSE(about->isVisible()) << key;
        EXPECT_TRUE(w.main->isVisible());
        EXPECT_FALSE(w.busy());
    }
    w.main->mnuHAbout->trigger();
    QTest::mouseClick(w.control<frmAbout>("frmAbout")->labTitle, Qt::LeftButton);
    EXPECT_FALSE(w.control<frmAbout>("frmAbout")->isVisible());
}

// "e" or "E" rolls the credits up a pixel each tenth of a second, on and on, until a click
// or another key closes the box.
TEST(HelpMenu, TheCreditsRollOnEUntilAClickOrAKey) {
    MainWindow w;
    w.open();
    for (const char letter : {'e', 'E'}) {
        w.main->mnuHAbout->trigger();
        auto* about = w.control<frmAbout>("frmAbout");
        const QDateTime start = w.s.clock.time;
        int expectedTop = 0;
        int spins = 0;
        QTimer watch;
        // Seven seconds on, the credits have risen 70 pixels from where they came in.
        QObject::connect(&watch, &QTimer::timeout, [&] {
            const qint64 tenths = start.msecsTo(w.s.clock.time) / 100;
            // A roll that lets no time pass is stopped all the same.
            if (tenths < 70 && ++spins < 100000) {
                return;
            }
            watch.stop();
            expectedTop = about->labCredits->y() == 150 - (tenths - 1) ? 1 : -1;
            EXPECT_FALSE(about->picArrow->isVisible());
            EXPECT_TRUE(about->labCredits->text().startsWith(
                QStringLiteral("Desko for Windows rev 4.0\n")));
            if (letter == 'e') {
                QTest::mouseClick(about->labCredits, Qt::LeftButton);
            } else {
                QTest::keyClick(about, Qt::Key_Q);
            }
        });
        watch.start(0);
        QTest::keyClick(about, letter);
        EXPECT_EQ(expectedTop, 1);
        EXPECT_FALSE(about->isVisible());
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
