#include "core/model/calendar.h"
#include "core/model/workspace.h"
#include "core/services/textfile.h"
#include "fakes.h"
#include "persistence/scheduleformat.h"
#include "persistence/workspacefile.h"
#include "shell/agentedit.h"
#include "shell/filecommands.h"
#include "shell/mainview.h"
#include "shell/monthchange.h"
#include "shell/programstart.h"
#include "shell/shutdown.h"
#include "tables.h"

#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <climits>
#include <functional>

namespace {

// The text told by how it differs from the reference named: the lines of the reference that
// it lacks, "-", then its lines that the reference lacks, "+"; blank lines are left out.
QStringList against(const QString& what, const QString& text, const QString& reference,
                    const char* referenceName) {
    QStringList gone = textLines(reference);
    QStringList added;
    for (const QString& line : textLines(text)) {
        if (!line.isEmpty() && !gone.removeOne(line)) {
            added.append(QStringLiteral("  + ") + line);
        }
    }
    gone.removeAll(QString());
    for (QString& line : gone) {
        line.prepend(QStringLiteral("  - "));
    }
    const QString name = QString::fromUtf8(referenceName);
    return gone.isEmpty() && added.isEmpty()
               ? QStringList{what + QStringLiteral(": as ") + name}
               : QStringList{what + QStringLiteral(", against ") + name + QLatin1Char(':')} + gone +
                     added;
}

// The office of the expected files, opened from its schedule file before, in a program
// directory of its own. Its window tells the transcript what the flows ask of it.
struct Office final : MainView {
    Office() {
        openMonth(ws, 2027, 2, home.path());
        modLoadWorkspace(ws, s.ctx, QStringLiteral(DESKO_GOLDEN_DIR "/office.dko"));
        ws.gScheduleTag = QStringLiteral(" [Earlier.dko]");
        ws.gHasScheduleFile = 1;
    }

    // The files a user may open, in the folder "given".
    void giveFiles() {
        const QString given = path(QStringLiteral("given"));
        QDir(home.path()).mkpath(QStringLiteral("given/folder.dko"));
        QFile::rename(exampleSchedule(given, "3.5.2"), given + QStringLiteral("/old.dko"));
        QFile::copy(exampleSchedule(given), given + QStringLiteral("/.hidden.dko"));
        QFile::copy(QStringLiteral(DESKO_TESTS_DIR "/shell/golden/damaged.dko"),
                    given + QStringLiteral("/damaged.dko"));
        writeFileBytes(given + QStringLiteral("/noise.dko"), QByteArray(4096, '\x97'));
    }

    void beginLongCommand(const QString& status) override {
        say(QStringLiteral("window busy: ") + status);
    }
    void modLeaveBusyState() override { say(QStringLiteral("window normal")); }
    void showOpenedSchedule() override { say(QStringLiteral("window shows the file read")); }
    void showReview() override { say(QStringLiteral("window shows the review")); }

    void say(const QString& line) { s.dialogs.said.append(line); }
    QString path(const QString& name) const { return home.filePath(name); }

    // The run as the user met it, and what it left: the boxes and the window in turn, the
    // log, the workspace and each file of the folder, told by how they differ from the
    // office's own files.
    QStringList transcript() const {
        QStringList lines = s.dialogs.said + logLines(ws);
        lines.append(
            QStringLiteral("dirty %1, saved %2, generated %3, schedule file %4, tag \"%5\"")
                .arg(ws.gDirty ? QString::number(*ws.gDirty) : QStringLiteral("unset"))
                .arg(ws.gSaveDone)
                .arg(ws.gScheduleGenerated)
                .arg(ws.gHasScheduleFile)
                .arg(ws.gScheduleTag));
        lines.append(QStringLiteral("has holidays %1, noted days %2, vacations %3")
                         .arg(ws.gHasHolidays)
                         .arg(ws.gHasNotedDays)
                         .arg(ws.gHasVacations));
        Workspace copy = ws;
        lines += against(QStringLiteral("workspace"), scheduleFileText(copy, FileKind::Schedule),
                         reference(false), referenceName);
        for (const QString& name : QDir(home.path()).entryList(QDir::Files)) {
            if (name != QLatin1String("Desko40.log")) {
                const bool working = name == QLatin1String("Desko40.ini");
                lines += against(QStringLiteral("file ") + name, fileText(path(name)),
                                 reference(working), working ? workingName() : referenceName);
            }
        }
        // The next start reads the working file left without a word, and would write it again
        // as it stands.
        if (QFile::exists(ws.gConfigFile)) {
            TestServices next;
            Workspace reread;
            openMonth(reread, ws.gCurrentYear, ws.gCurrentMonth, home.path());
            modLoadWorkspace(reread, next.ctx, QString());
            lines += against(QStringLiteral("the working file read and written again"),
                             scheduleFileText(reread, FileKind::Working), fileText(ws.gConfigFile),
                             "the working file");
            lines += next.dialogs.said;
        }
        return lines;
    }

    // The office's own schedule file, or for its working file the same without its schedule;
    // after an open of the example office, that office's.
    bool example() const { return QLatin1String(referenceName) != QLatin1String("office.dko"); }
    QString reference(bool working) const {
        if (!example()) {
            return golden(working ? "office.ini" : "office.dko");
        }
        return fileText(working ? QStringLiteral(DESKO_EXAMPLES_DIR "/office/Desko40.ini")
                                : path(QStringLiteral("given/chosen.dko")));
    }
    const char* workingName() const {
        return example() ? "the example's Desko40.ini" : "office.ini";
    }

    QTemporaryDir home;
    TestServices s;
    Workspace ws;
    const char* referenceName = "office.dko";
};

// The run's end as a road out tells it, and whether the working file was there while it
// asked.
void roadOut(Office& o, bool (*road)(Workspace&, Context&, MainView&)) {
    o.s.dialogs.whileShown = [&o] {
        o.say(QFile::exists(o.ws.gConfigFile) ? QStringLiteral("  (the working file written)")
                                              : QStringLiteral("  (no working file)"));
    };
    o.say(road(o.ws, o.s.ctx, o) ? QStringLiteral("the program ends")
                                 : QStringLiteral("the program stays"));
}

// Carries out a flow's command with its fields (f), as the table of flows writes them.
void run(Office& o, const QStringList& f) {
    const QString& command = f[0];
    if (command == u"save as") {
        saveScheduleAs(o.ws, o.s.ctx, o);
    } else if (command == u"new") {  // notes and an Outlook body outlive a month, not a New
        o.ws.gCalendarNotes = o.ws.gOutlookBody = QStringLiteral("notes");
        newSchedule(o.ws, o.s.ctx, o);
    } else if (command.startsWith(u"open")) {
        o.giveFiles();
        if (command == u"open example" || f.value(1) == u"given/chosen.dko") {
            o.referenceName = "the file opened";
        }
        if (command == u"open over none") {  // where a refused file leaves none to review
            o.ws.gScheduleGenerated = 0;
        }
        if (command != u"open named") {
            openScheduleFile(o.ws, o.s.ctx, o);
        } else {
            QString path = o.path(f[1]);
            modOpenFromCommandLine(o.ws, o.s.ctx, o, path);
            o.say(QStringLiteral("the command line is now \"") + path + QLatin1Char('"'));
        }
    } else if (command == u"close" || command == u"exit") {
        roadOut(o, command == u"close" ? closeMainWindow : exitProgram);
    } else if (command == u"month") {  // month, year, data or not, then the stepper's values
        // From 0: +1 is one step down (the month before), -1 one step up (the month after),
        // anything else a drag of the thumb. An Outlook body outlives a month.
        o.ws.gCurrentMonth = f[1].toInt();
        o.ws.gCurrentYear = f[2].toInt();
        modSetupMonth(o.ws);
        o.ws.gOutlookBody = QStringLiteral("kept");
        if (f[3] != u"data") {
            o.ws.gHasHolidays = o.ws.gHasNotedDays = o.ws.gHasVacations = 0;
            o.ws.gScheduleGenerated = 0;
        }
        for (const QString& value : f[4].split(u' ')) {
            o.say(changeMonth(o.ws, o.s.ctx, value.toInt()) ? QStringLiteral("the month changes")
                                                            : QStringLiteral("the month stays"));
        }
    } else if (command == u"edit") {  // the frame's OK adding (row -1) or changing the row
        const int row = f[1].toInt();
        o.ws.gAgentEditMode = row < 0 ? 0 : 1;
        o.ws.gAgentEditIndex = static_cast<qint16>(row);
        const AgentEditResult result = commitAgentEdit(o.ws, o.s.ctx, {f[2], f[3], f[4], false});
        const char* const ends[] = {"the first name", "the last name", "the frame closes"};
        o.say(QStringLiteral("the edit ends: %1; list item %2 out, %3 in; agent in work %4")
                  .arg(QLatin1String(ends[static_cast<int>(result.end)]))
                  .arg(result.removedItem)
                  .arg(result.insertedItem)
                  .arg(o.ws.gAgentEditIndex));
    } else if (command == u"delete") {
        o.say(deleteAgentAsked(o.ws, o.s.ctx, f[1].toInt()) ? QStringLiteral("deleted")
                                                            : QStringLiteral("not deleted"));
        o.say(QStringLiteral("agent chosen: ") + (o.ws.gSelectedAgent
                                                      ? QString::number(*o.ws.gSelectedAgent)
                                                      : QStringLiteral("none")));
    } else if (command == u"look up") {  // first, last, typed, the item chosen of several
        o.s.ctx.launch.addressBook = QStringLiteral(DESKO_TESTS_DIR "/shell/golden/book");
        o.s.dialogs.choiceAnswers = {f[4].isEmpty() ? std::nullopt : std::optional(f[4].toInt())};
        o.say(QStringLiteral("address: \"%1\"")
                  .arg(lookUpAddress(o.ws, o.s.ctx, {f[1], f[2], f[3]})));
    } else {
        ADD_FAILURE() << "no command " << command.toStdString();
    }
}

}  // namespace

// Each command of the File menu, each road out, each step of the month and each edit of the
// agent list, from a changed or unchanged workspace, with each answer a user may give to its
// boxes and dialogs: what it asks, what it logs, the workspace it leaves and the files it
// writes.
TEST(ShellFlows, EachFlowAsksLogsAndLeavesWhatItAlwaysHas) {
    for (const QStringList& flow : tableRows("shell/golden/flows.tsv")) {
        SCOPED_TRACE(flow[0].toStdString());
        Office office;
        office.ws.gDirty = flow[1].isEmpty() ? std::nullopt : std::optional(flow[1].toInt());
        office.s.dialogs.answers = answersNamed(flow[2]);
        for (const QString& file : flow[3].split(u'|', Qt::SkipEmptyParts)) {
            office.s.dialogs.fileAnswers.push_back(office.path(file));
        }
        run(office, flow[4].split(u'|'));
        expectTranscript(office.transcript(), "shell/golden/flows.txt", flow[0],
                         office.home.path());
    }
}

// The start takes the coming month. The example office was saved in January 2027: its
// holidays and titles stay only when the coming month is that month, and its standing
// restrictions always. Without a working file the start says so, with the message's log line
// before the run's header, and goes on with an empty office.
TEST(ShellFlows, TheStartTakesTheComingMonth) {
    const std::pair<QDate, bool> starts[] = {{QDate(2026, 12, 1), true},
                                             {QDate(2027, 1, 31), true},
                                             {QDate(2025, 12, 31), true},
                                             {QDate(2026, 12, 15), false}};
    for (const auto& [today, example] : starts) {
        const QString name = today.toString(Qt::ISODate) +
                             (example ? QString() : QStringLiteral(" without a working file"));
        SCOPED_TRACE(name.toStdString());
        QTemporaryDir home;
        TestServices s;
        Workspace ws;
        s.ctx.launch.home = home.path();
        const QString ini = home.filePath(QStringLiteral("Desko40.ini"));
        if (example) {
            ASSERT_TRUE(QFile::copy(QStringLiteral(DESKO_EXAMPLES_DIR "/office/Desko40.ini"), ini));
            QFile::setPermissions(ini, QFile::ReadOwner | QFile::WriteOwner);
        }
        s.clock.time = QDateTime(today, QTime(9, 30));
        prepareWorkspace(ws, s.ctx, QString());

        QStringList lines = s.dialogs.said;
        bool header = false;  // the run's header tells of the machine, not of the start
        for (const QString& line : textLines(fileText(ws.gLogFile))) {
            if (!header && line.endsWith(QString(44, u'_'))) {
                header = true;
                lines.append(QStringLiteral("log (the run's header)"));
            } else if (!header && !line.isEmpty()) {
                lines.append(QStringLiteral("log ") + line.mid(15));
            }
            header = header && !line.contains(u"Software startup switch");
        }
        lines.append(QStringLiteral("%1 %2: %3 agents, the fifth \"%4\"; holiday on the 1st %5, "
                                    "calendar title \"%6\", restrictions %7")
                         .arg(ws.currentMonthName())
                         .arg(ws.gCurrentYear)
                         .arg(ws.gAgentCount)
                         .arg(ws.gAgentKey.size() > 5 ? ws.gAgentKey[5] : QString())
                         .arg(ws.gHoliday[1])
                         .arg(ws.gCalendarTitle)
                         .arg(ws.gHasRestrictions));
        expectTranscript(lines, "shell/golden/flows.txt", QStringLiteral("Start on ") + name,
                         home.path());
    }
}

// One run per program directory: the claim of a run that crashed lapses, a live run's claim
// refuses a second one, and a folder where no claim can be written stops nobody.
TEST(ShellFlows, OneRunPerProgramDirectory) {
    QTemporaryDir home;
    QFile stale(home.filePath(QStringLiteral("Desko40.lock")));
    ASSERT_TRUE(stale.open(QIODevice::WriteOnly));
    stale.write("2147483000\ndesko40\n" + QSysInfo::machineHostName().toUtf8() + "\n");
    stale.close();
    bool otherRunning = true;
    const auto first = claimProgramDirectory(home.path(), otherRunning);
    EXPECT_FALSE(otherRunning);
    EXPECT_TRUE(first->isLocked());
    const auto second = claimProgramDirectory(home.path(), otherRunning);
    EXPECT_TRUE(otherRunning);
    claimProgramDirectory(home.filePath(QStringLiteral("missing")), otherRunning);
    EXPECT_FALSE(otherRunning);
}
