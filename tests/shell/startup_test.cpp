#include "fakes.h"
#include "persistence/textfile.h"
#include "shell/frmMain.h"
#include "shell/programstart.h"
#include "shell/textrules.h"
#include "workspace/workspace.h"

#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QLockFile>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

const QString kIniMissing = QStringLiteral(
    "The Desko for Windows configuration file, Desko40.ini, could not be found in the program "
    "directory.  The program will still run, but some configuration data may be lost.");

// One run of the program in a directory of its own, on the example office when asked, with
// the clock in December 2026 so that the coming month is the example's January 2027.
class Startup : public ::testing::Test {
protected:
    void SetUp() override { s.clock.time = QDateTime(QDate(2026, 12, 15), QTime(9, 30, 0)); }

    QString file(const char* name) const { return home.filePath(QString::fromUtf8(name)); }

    void withExampleOffice() const {
        ASSERT_TRUE(QFile::copy(QStringLiteral(DESKO_EXAMPLES_DIR "/office/Desko40.ini"),
                                file("Desko40.ini")));
        QFile::setPermissions(file("Desko40.ini"), QFile::ReadOwner | QFile::WriteOwner);
    }

    DeskoRun start(const QString& commandLine = QString()) {
        return modProgramStart(ws, s.ctx, home.path(), QStringLiteral("desko40"), commandLine, 0);
    }

    QString log() const { return readTextFile(file("Desko40.log")).value_or(QString()); }

    template <typename T>
    T* control(const DeskoRun& run, const char* name) const {
        return run.window->findChild<T*>(QString::fromUtf8(name));
    }

    QTemporaryDir home;
    TestServices s;
    Workspace ws;
};

TEST_F(Startup, FirstRunWithoutAWorkingFileSaysSoAndGoesOn) {
    const DeskoRun run = start();
    ASSERT_TRUE(run.window);
    ASSERT_EQ(s.dialogs.shown.size(), 1U);
    EXPECT_EQ(s.dialogs.shown[0].text, modWrapMessage(kIniMissing, s.dialogs));
    EXPECT_EQ(s.dialogs.shown[0].icon, MsgIcon::Stop);
    // The message's log line comes before the run's header.
    EXPECT_TRUE(log().startsWith(QStringLiteral("[09:30:00]     INI file not found at ") +
                                 file("Desko40.ini") + QStringLiteral("\r\n[09:30:00]     ____")));
    EXPECT_EQ(ws.gAgentCount, 0);
    EXPECT_EQ(ws.gCurrentMonth, 1);
    EXPECT_EQ(ws.gCurrentYear, 2027);
    EXPECT_EQ(ws.gCalendarFont, QStringLiteral("Times New Roman"));
    EXPECT_EQ(run.window->windowTitle(), QStringLiteral("Desko for Windows rev 4.0  [not saved]"));
}

TEST_F(Startup, TheComingMonthKeepsOrDropsTheSavedMonthsData) {
    struct Case {
        QDate today;
        int month;
        int year;
        bool reset;
    };
    const Case cases[] = {
        {QDate(2026, 12, 1), 1, 2027, false},  // December schedules January of the next year
        {QDate(2027, 1, 31), 2, 2027, true},
        {QDate(2025, 12, 31), 1, 2026, true},  // same month, another year
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.today.toString(Qt::ISODate).toStdString());
        QTemporaryDir dir;
        QFile::copy(QStringLiteral(DESKO_EXAMPLES_DIR "/office/Desko40.ini"),
                    dir.filePath(QStringLiteral("Desko40.ini")));
        TestServices services;
        services.clock.time = QDateTime(c.today, QTime(8, 0));
        Workspace w;
        const DeskoRun run =
            modProgramStart(w, services.ctx, dir.path(), QStringLiteral("desko40"), {}, 0);
        EXPECT_TRUE(services.dialogs.shown.empty());
        EXPECT_EQ(w.gCurrentMonth, c.month);
        EXPECT_EQ(w.gCurrentYear, c.year);
        EXPECT_EQ(w.gAgentCount, 12);
        EXPECT_EQ(w.gHoliday[1], c.reset ? 0 : 1);
        EXPECT_EQ(w.gCalendarTitle.isEmpty(), c.reset);
        EXPECT_EQ(w.gHasRestrictions, 1);  // standing restrictions outlive the month
        const QString text =
            readTextFile(dir.filePath(QStringLiteral("Desko40.log"))).value_or(QString());
        EXPECT_TRUE(text.contains(QStringLiteral("]     Saved month is January 2027\r\n")));
        EXPECT_EQ(
            text.contains(QStringLiteral("]     Month number has changed since program was last "
                                         "used--resetting month-specific data\r\n")),
            c.reset);
    }
}

TEST_F(Startup, ASecondInstanceIsRefusedAndTouchesNothing) {
    withExampleOffice();
    const DeskoRun first = start();
    ASSERT_TRUE(first.window);
    const QString logBefore = log();
    const QString iniBefore = readTextFile(file("Desko40.ini")).value_or(QString());

    TestServices other;
    Workspace second;
    const DeskoRun refused =
        modProgramStart(second, other.ctx, home.path(), QStringLiteral("desko40"), {}, 0);
    EXPECT_FALSE(refused.window);
    ASSERT_EQ(other.dialogs.shown.size(), 1U);
    EXPECT_EQ(
        other.dialogs.shown[0].text,
        modWrapMessage(
            QStringLiteral("You may run only one instance of Desko for Windows rev 4.0 at a time."),
            other.dialogs));
    EXPECT_EQ(other.dialogs.shown[0].icon, MsgIcon::Stop);
    EXPECT_EQ(log(), logBefore);
    EXPECT_EQ(readTextFile(file("Desko40.ini")), iniBefore);
}

TEST_F(Startup, TheClaimOfACrashedRunLapses) {
    QFile lock(file("Desko40.lock"));
    ASSERT_TRUE(lock.open(QIODevice::WriteOnly));
    lock.write("2147483000\ndesko40\n" + QSysInfo::machineHostName().toUtf8() + "\n");
    lock.close();
    EXPECT_TRUE(start().window);
}

// Each road out with each state of the change flag and each answer: the question asked, when
// the working file is written, whether the run ends and whether the log is closed.
TEST_F(Startup, TwoRoadsOut) {
    enum class Road { Close, Exit };
    struct Case {
        Road road;
        std::optional<int> dirty;
        std::optional<MsgAnswer> answer;  // none: no question is asked
        bool ends;
    };
    const QString closeQuestion = QStringLiteral(
        "The current desko schedule has not been saved.  Do you want to save the changes?");
    const QString exitQuestion = QStringLiteral(
        "The desko schedule has changed since you last saved the configuration.  Do you want to "
        "save the changes?");
    const Case cases[] = {
        {Road::Close, std::nullopt, std::nullopt, true},
        {Road::Close, 0, std::nullopt, true},
        {Road::Close, 1, MsgAnswer::Yes, true},  // ends even though nothing was saved
        {Road::Close, 1, MsgAnswer::No, true},
        {Road::Close, 1, MsgAnswer::Cancel, false},
        {Road::Exit, std::nullopt, std::nullopt, true},
        {Road::Exit, 1, MsgAnswer::Yes, false},  // the save did not complete: stay
        {Road::Exit, 1, MsgAnswer::No, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(static_cast<int>(c.road) * 100 + c.dirty.value_or(-1) * 10 +
                     (c.answer ? static_cast<int>(*c.answer) : -1));
        QTemporaryDir dir;
        TestServices services;
        Workspace w;
        const DeskoRun run =
            modProgramStart(w, services.ctx, dir.path(), QStringLiteral("desko40"), {}, 0);
        const QString ini = dir.filePath(QStringLiteral("Desko40.ini"));
        QFile::remove(ini);
        w.gDirty = c.dirty;
        services.dialogs.shown.clear();
        if (c.answer) {
            services.dialogs.answers.push_back(*c.answer);
        }
        bool writtenBeforeQuestion = false;
        services.dialogs.whileShown = [&] { writtenBeforeQuestion = QFile::exists(ini); };
        QSignalSpy ended(run.window.get(), &frmMain::programEnds);

        if (c.road == Road::Close) {
            run.window->close();
        } else {
            run.window->mnuFExit->trigger();
        }

        EXPECT_EQ(ended.count(), c.ends ? 1 : 0);
        ASSERT_EQ(services.dialogs.shown.size(), c.answer ? 1U : 0U);
        if (c.answer) {
            const auto& box = services.dialogs.shown[0];
            EXPECT_EQ(box.text, modWrapMessage(c.road == Road::Close ? closeQuestion : exitQuestion,
                                               services.dialogs));
            EXPECT_EQ(box.buttons,
                      c.road == Road::Close ? MsgButtons::YesNoCancel : MsgButtons::YesNo);
            EXPECT_EQ(box.icon, MsgIcon::Question);
            EXPECT_EQ(writtenBeforeQuestion, c.road == Road::Close);
        }
        EXPECT_EQ(QFile::exists(ini), c.road == Road::Close || c.ends);
        const QString text =
            readTextFile(dir.filePath(QStringLiteral("Desko40.log"))).value_or(QString());
        EXPECT_EQ(text.contains(QStringLiteral("]     Closing Desko40.log on ")),
                  c.road == Road::Close && c.ends);
        EXPECT_EQ(text.contains(QStringLiteral("]     Cancelling unload\r\n")),
                  c.answer == MsgAnswer::Cancel);
        EXPECT_EQ(run.window->isVisible(), !(c.road == Road::Close && c.ends));
    }
}

TEST_F(Startup, AScheduleFileOnTheCommandLineOpens) {
    withExampleOffice();
    const QString dko = file("june office.dko");
    ASSERT_TRUE(QFile::copy(QStringLiteral(DESKO_EXAMPLES_DIR "/office/Example Office.dko"), dko));
    const DeskoRun run = start(dko);
    EXPECT_EQ(ws.gDirty, 0);
    EXPECT_EQ(ws.gScheduleTag, QStringLiteral(" [June Office.dko]"));
    EXPECT_EQ(ws.gScheduleGenerated, 1);
    EXPECT_EQ(ws.gCalendarTitle, QStringLiteral("January 2027 Desko Schedule"));
    EXPECT_TRUE(log().contains(QStringLiteral("]     Program started with command switch\r\n")));
    EXPECT_TRUE(log().contains(QStringLiteral("]     Software startup switch is ")));
    // The working file now follows the opened file's month, and never holds its schedule.
    const QString ini = readTextFile(file("Desko40.ini")).value_or(QString());
    EXPECT_TRUE(ini.contains(QStringLiteral("\r\nCurrent Month=1\r\n")));
    EXPECT_FALSE(ini.contains(QStringLiteral("[Schedule]")));
}

TEST_F(Startup, CommandLinesThatOpenNothing) {
    struct Case {
        const char* what;
        QString commandLine;
        bool busy;  // the hidden file passes the first test only
    };
    withExampleOffice();
    QFile::copy(QStringLiteral(DESKO_EXAMPLES_DIR "/office/Example Office.dko"),
                file(".hidden.dko"));
    QFile::copy(QStringLiteral(DESKO_EXAMPLES_DIR "/office/Example Office.dko"),
                file("office.dko"));
    const Case cases[] = {
        {"a file that is not there", file("absent.dko"), false},
        {"a quoted name", QLatin1Char('"') + file("office.dko") + QLatin1Char('"'), false},
        {"a hidden file", file(".hidden.dko"), true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        QTemporaryDir dir;
        QFile::copy(file("Desko40.ini"), dir.filePath(QStringLiteral("Desko40.ini")));
        TestServices services;
        Workspace w;
        const DeskoRun run = modProgramStart(w, services.ctx, dir.path(), QStringLiteral("desko40"),
                                             c.commandLine, 0);
        EXPECT_FALSE(w.gDirty.has_value());
        EXPECT_EQ(w.gScheduleTag, QStringLiteral(" [not saved]"));
        EXPECT_EQ(run.window->cmdAdd->isEnabled(), !c.busy);
        EXPECT_EQ(run.window->labStatus->text(),
                  c.busy ? QStringLiteral("Opening a desko schedule . . .") : QString());
    }
}

}  // namespace
