#include "core/model/textrules.h"
#include "core/model/workspace.h"
#include "core/services/msgbox.h"
#include "core/services/textfile.h"
#include "fakes.h"
#include "shell/forms/frmMain.h"
#include "shell/forms/programstart.h"

#include <QAction>
#include <QFile>
#include <QLabel>
#include <QLockFile>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

// One run of the program in a directory of its own, with the clock in December 2026 so that
// the coming month is the example office's January 2027.
struct Start {
    Start() { s.clock.time = QDateTime(QDate(2026, 12, 15), QTime(9, 30, 0)); }

    QString file(const char* name) const { return home.filePath(QString::fromUtf8(name)); }
    QString text(const char* name) const { return readTextFile(file(name)).value_or(QString()); }

    // The example office's working file, writable as a user's own would be.
    void withExampleOffice() const {
        ASSERT_TRUE(QFile::copy(QStringLiteral(DESKO_EXAMPLES_DIR "/office/Desko40.ini"),
                                file("Desko40.ini")));
        QFile::setPermissions(file("Desko40.ini"), QFile::ReadOwner | QFile::WriteOwner);
    }

    frmMain* start(const QString& commandLine = QString()) {
        s.ctx.launch.home = home.path();
        s.ctx.launch.splashMs = 0;
        run = modProgramStart(ws, s.ctx, QStringLiteral("desko40"), commandLine);
        return run.window.get();
    }

    QTemporaryDir home;
    TestServices s;
    Workspace ws;
    DeskoRun run;
};

// The start takes the coming month. The example office was saved in January 2027: its
// holidays and titles stay only when the coming month is that month, and its standing
// restrictions always. Without a working file the start says so, with the message's log line
// before the run's header, and goes on.
TEST(Startup, TheStartTakesTheComingMonth) {
    struct Case {
        QDate today;
        bool example;
        int month, year;
        bool reset;
    };
    const Case cases[] = {
        {QDate(2026, 12, 1), true, 1, 2027, false},  // December schedules the next January
        {QDate(2027, 1, 31), true, 2, 2027, true},
        {QDate(2025, 12, 31), true, 1, 2026, true},  // same month, another year
        {QDate(2026, 12, 15), false, 1, 2027, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(&c - cases);
        Start r;
        if (c.example) {
            r.withExampleOffice();
        }
        r.s.clock.time = QDateTime(c.today, QTime(9, 30));
        ASSERT_TRUE(r.start());
        ASSERT_EQ(r.s.dialogs.shown.size(), c.example ? 0U : 1U);
        const QString log = r.text("Desko40.log");
        if (!c.example) {
            EXPECT_EQ(r.s.dialogs.shown[0].text,
                      modWrapMessage(QStringLiteral("The Desko for Windows configuration file, "
                                                    "Desko40.ini, could not be found in the "
                                                    "program directory.  The program will still "
                                                    "run, but some configuration data may be "
                                                    "lost."),
                                     r.s.dialogs));
            EXPECT_EQ(r.s.dialogs.shown[0].icon, MsgIcon::Stop);
            EXPECT_TRUE(log.startsWith(QStringLiteral("[09:30:00]     INI file not found at ") +
                                       r.file("Desko40.ini") +
                                       QStringLiteral("\r\n[09:30:00]     ____")));
        }
        EXPECT_EQ(r.ws.gCurrentMonth, c.month);
        EXPECT_EQ(r.ws.gCurrentYear, c.year);
        EXPECT_EQ(r.ws.gAgentCount, c.example ? 12 : 0);
        EXPECT_EQ(r.ws.gHoliday[1], c.reset ? 0 : 1);
        EXPECT_EQ(r.ws.gCalendarTitle.isEmpty(), c.reset);
        EXPECT_EQ(r.ws.gHasRestrictions, c.example ? 1 : 0);
        EXPECT_EQ(log.contains(QStringLiteral("]     Saved month is January 2027\r\n")), c.example);
        EXPECT_EQ(
            log.contains(QStringLiteral("]     Month number has changed since program was last "
                                        "used--resetting month-specific data\r\n")),
            c.reset);
        EXPECT_EQ(r.run.window->windowTitle(),
                  QStringLiteral("Desko for Windows rev 4.0  [not saved]"));
    }
}

// One run per program directory: the claim of a run that crashed lapses, a live run's claim
// refuses a second run, which touches nothing.
TEST(Startup, ASecondInstanceIsRefusedAndTouchesNothing) {
    Start r;
    r.withExampleOffice();
    QFile lock(r.file("Desko40.lock"));
    ASSERT_TRUE(lock.open(QIODevice::WriteOnly));
    lock.write("2147483000\ndesko40\n" + QSysInfo::machineHostName().toUtf8() + "\n");
    lock.close();
    ASSERT_TRUE(r.start());
    const QString log = r.text("Desko40.log");
    const QString ini = r.text("Desko40.ini");

    TestServices other;
    other.ctx.launch.home = r.home.path();
    Workspace second;
    EXPECT_FALSE(modProgramStart(second, other.ctx, QStringLiteral("desko40"), {}).window);
    ASSERT_EQ(other.dialogs.shown.size(), 1U);
    EXPECT_EQ(
        other.dialogs.shown[0].text,
        modWrapMessage(
            QStringLiteral("You may run only one instance of Desko for Windows rev 4.0 at a time."),
            other.dialogs));
    EXPECT_EQ(other.dialogs.shown[0].icon, MsgIcon::Stop);
    EXPECT_EQ(r.text("Desko40.log"), log);
    EXPECT_EQ(r.text("Desko40.ini"), ini);
}

// Each road out with each state of the change flag, each answer and each end of the Save As
// that Yes runs: the question asked, when the working file is written, whether the run ends
// and whether the log is closed.
TEST(Startup, TwoRoadsOut) {
    enum class Road { Close, Exit };
    struct Case {
        Road road;
        std::optional<int> dirty;
        std::optional<MsgAnswer> answer;  // none: no question is asked
        bool saves;                       // the Save As after Yes completes
        bool ends;
    };
    const QString closeQuestion = QStringLiteral(
        "The current desko schedule has not been saved.  Do you want to save the changes?");
    const QString exitQuestion = QStringLiteral(
        "The desko schedule has changed since you last saved the configuration.  Do you want to "
        "save the changes?");
    const Case cases[] = {
        {Road::Close, std::nullopt, std::nullopt, false, true},
        {Road::Close, 0, std::nullopt, false, true},
        {Road::Close, 1, MsgAnswer::Yes, true, true},
        {Road::Close, 1, MsgAnswer::Yes, false, true},  // ends even though nothing was saved
        {Road::Close, 1, MsgAnswer::No, false, true},
        {Road::Close, 1, MsgAnswer::Cancel, false, false},
        {Road::Exit, std::nullopt, std::nullopt, false, true},
        {Road::Exit, 0, std::nullopt, false, true},
        {Road::Exit, 1, MsgAnswer::Yes, true, true},
        {Road::Exit, 1, MsgAnswer::Yes, false, false},  // the save did not complete: stay
        {Road::Exit, 1, MsgAnswer::No, false, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(&c - cases);
        Start r;
        frmMain* window = r.start();
        const QString ini = r.file("Desko40.ini");
        QFile::remove(ini);
        r.ws.gDirty = c.dirty;
        r.s.dialogs.shown.clear();
        if (c.answer) {
            r.s.dialogs.answers.push_back(*c.answer);
        }
        if (c.saves) {
            r.s.dialogs.fileAnswers.push_back(r.file("last words"));
        }
        bool writtenBeforeQuestion = false;
        r.s.dialogs.whileShown = [&] { writtenBeforeQuestion = QFile::exists(ini); };
        QSignalSpy ended(window, &frmMain::programEnds);

        if (c.road == Road::Close) {
            window->close();
        } else {
            window->mnuFExit->trigger();
        }

        EXPECT_EQ(ended.count(), c.ends ? 1 : 0);
        ASSERT_EQ(r.s.dialogs.shown.size(), c.answer ? 1U : 0U);
        if (c.answer) {
            const auto& box = r.s.dialogs.shown[0];
            EXPECT_EQ(box.text, modWrapMessage(c.road == Road::Close ? closeQuestion : exitQuestion,
                                               r.s.dialogs));
            EXPECT_EQ(box.buttons,
                      c.road == Road::Close ? MsgButtons::YesNoCancel : MsgButtons::YesNo);
            EXPECT_EQ(box.icon, MsgIcon::Question);
            EXPECT_EQ(writtenBeforeQuestion, c.road == Road::Close);
        }
        EXPECT_EQ(r.s.dialogs.filesShown.size(), c.answer == MsgAnswer::Yes ? 1U : 0U);
        EXPECT_EQ(r.text("last words.dko").contains(QStringLiteral("\r\n[Schedule]\r\n")), c.saves);
        EXPECT_EQ(QFile::exists(ini), c.road == Road::Close || c.ends);
        const QString log = r.text("Desko40.log");
        EXPECT_EQ(log.contains(QStringLiteral("]     Closing Desko40.log on ")),
                  c.road == Road::Close && c.ends);
        EXPECT_EQ(log.contains(QStringLiteral("]     Cancelling unload\r\n")),
                  c.answer == MsgAnswer::Cancel);
        EXPECT_EQ(window->isVisible(), !(c.road == Road::Close && c.ends));
    }
}

// A schedule file named on the command line opens and the review takes over; anything else
// opens nothing. A hidden file passes the start's test but not the opening's, and leaves the
// window busy.
TEST(Startup, TheCommandLine) {
    struct Case {
        const char* name;
        bool quoted;
        bool opens;
        bool busy;
    };
    const Case cases[] = {
        {"june office.dko", false, true, true},
        {"absent.dko", false, false, false},
        {"office.dko", true, false, false},
        {".hidden.dko", false, false, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Start r;
        r.withExampleOffice();
        // The schedule file differs from the working file, so that the working file is seen to
        // follow it.
        QString dko = readTextFile(QStringLiteral(DESKO_EXAMPLES_DIR "/office/Example Office.dko"))
                          .value_or(QString());
        dko.replace(QStringLiteral("Printer Format=111000"),
                    QStringLiteral("Printer Format=010201"));
        for (const char* name : {"june office.dko", "office.dko", ".hidden.dko"}) {
            ASSERT_TRUE(writeTextFile(r.file(name), dko));
        }
        const QString path = r.file(c.name);
        const frmMain* window =
            r.start(c.quoted ? QLatin1Char('"') + path + QLatin1Char('"') : path);

        EXPECT_EQ(r.ws.gDirty, c.opens ? std::optional<int>(0) : std::nullopt);
        EXPECT_EQ(r.ws.gScheduleTag,
                  c.opens ? QStringLiteral(" [June Office.dko]") : QStringLiteral(" [not saved]"));
        EXPECT_EQ(window->cmdAdd->isEnabled(), !c.busy);
        EXPECT_EQ(window->labStatus->text(),
                  c.busy ? QStringLiteral("Opening a desko schedule . . .") : QString());
        EXPECT_EQ(r.text("Desko40.log")
                      .contains(QStringLiteral("]     Program started with command switch\r\n")),
                  c.opens);
        // The working file follows the opened file, and never holds its schedule.
        const QString ini = r.text("Desko40.ini");
        EXPECT_EQ(ini.contains(QStringLiteral("\r\nPrinter Format=010201\r\n")), c.opens);
        EXPECT_FALSE(ini.contains(QStringLiteral("[Schedule]")));
        EXPECT_EQ(r.ws.gScheduleGenerated, c.opens ? 1 : 0);
    }
}

}  // namespace
