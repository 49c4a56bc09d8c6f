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

using Step = std::function<void(Office&)>;

// The month and year given, with the month's data or without it, and an Outlook body that
// outlives a month; then the stepper's values in turn, from 0: +1 is one step down (the month
// before), -1 one step up (the month after), anything else a drag of the thumb.
Step stepMonth(int month, int year, bool data, std::vector<int> values) {
    return [=](Office& o) {
        o.ws.gCurrentMonth = month;
        o.ws.gCurrentYear = year;
        modSetupMonth(o.ws);
        o.ws.gOutlookBody = QStringLiteral("kept");
        if (!data) {
            o.ws.gHasHolidays = o.ws.gHasNotedDays = o.ws.gHasVacations = 0;
            o.ws.gScheduleGenerated = 0;
        }
        for (const int value : values) {
            o.say(changeMonth(o.ws, o.s.ctx, value) ? QStringLiteral("the month changes")
                                                    : QStringLiteral("the month stays"));
        }
    };
}

// The run's end as a road out tells it, and whether the working file was there while it
// asked.
Step roadOut(bool (*road)(Workspace&, Context&, MainView&)) {
    return [road](Office& o) {
        o.s.dialogs.whileShown = [&o] {
            o.say(QFile::exists(o.ws.gConfigFile) ? QStringLiteral("  (the working file written)")
                                                  : QStringLiteral("  (no working file)"));
        };
        o.say(road(o.ws, o.s.ctx, o) ? QStringLiteral("the program ends")
                                     : QStringLiteral("the program stays"));
    };
}

// The edit frame's OK, adding (row -1) or changing the agent at the row, and how it ends: the
// box the frame leaves the cursor in, or the list's change.
Step edit(int row, const char* first, const char* last, const char* email = "") {
    return [=](Office& o) {
        o.ws.gAgentEditMode = row < 0 ? 0 : 1;
        o.ws.gAgentEditIndex = static_cast<qint16>(row);
        const AgentEditResult result = commitAgentEdit(
            o.ws, o.s.ctx,
            {QString::fromUtf8(first), QString::fromUtf8(last), QString::fromUtf8(email), false});
        const char* const ends[] = {"the first name", "the last name", "the frame closes"};
        o.say(QStringLiteral("the edit ends: %1; list item %2 out, %3 in; agent in work %4")
                  .arg(QLatin1String(ends[static_cast<int>(result.end)]))
                  .arg(result.removedItem)
                  .arg(result.insertedItem)
                  .arg(o.ws.gAgentEditIndex));
    };
}

// Delete at the list index, and the agent chosen after it.
Step remove(int row) {
    return [row](Office& o) {
        o.say(deleteAgentAsked(o.ws, o.s.ctx, row) ? QStringLiteral("deleted")
                                                   : QStringLiteral("not deleted"));
        o.say(QStringLiteral("agent chosen: ") + (o.ws.gSelectedAgent
                                                      ? QString::number(*o.ws.gSelectedAgent)
                                                      : QStringLiteral("none")));
    };
}

// The address the address book gives for the edit frame's boxes, choosing one of several.
Step lookUp(const char* first, const char* last, const char* typed, std::optional<int> choice) {
    return [=](Office& o) {
        o.s.ctx.launch.addressBook = QStringLiteral(DESKO_TESTS_DIR "/shell/golden/book");
        o.s.dialogs.choiceAnswers = {choice};
        o.say(QStringLiteral("address: \"%1\"")
                  .arg(lookUpAddress(o.ws, o.s.ctx,
                                     {QString::fromUtf8(first), QString::fromUtf8(last),
                                      QString::fromUtf8(typed)})));
    };
}

// The command line's open of the file, the example office's or another.
Step openNamed(const char* name) {
    return [name](Office& o) {
        o.giveFiles();
        if (QLatin1String(name) == QLatin1String("given/chosen.dko")) {
            o.referenceName = "the file opened";
        }
        QString path = o.path(QString::fromUtf8(name));
        modOpenFromCommandLine(o.ws, o.s.ctx, o, path);
        o.say(QStringLiteral("the command line is now \"") + path + QLatin1Char('"'));
    };
}

}  // namespace

// Each command of the File menu, each road out, each step of the month and each edit of the
// agent list, from a changed or unchanged workspace, with each answer a user may give to its
// boxes and dialogs: what it asks, what it logs, the workspace it leaves and the files it
// writes.
TEST(ShellFlows, EachFlowAsksLogsAndLeavesWhatItAlwaysHas) {
    const Step saveAs = [](Office& o) { saveScheduleAs(o.ws, o.s.ctx, o); };
    // Notes and an Outlook body that outlive a month, but not a new schedule.
    const Step makeNew = [](Office& o) {
        o.ws.gCalendarNotes = o.ws.gOutlookBody = QStringLiteral("notes");
        newSchedule(o.ws, o.s.ctx, o);
    };
    const Step open = [](Office& o) {
        o.giveFiles();
        openScheduleFile(o.ws, o.s.ctx, o);
    };
    // A file opened over a workspace without a schedule: a refused file leaves none to review.
    const Step openOverNone = [&](Office& o) {
        o.ws.gScheduleGenerated = 0;
        open(o);
    };
    const Step openExample = [&](Office& o) {
        o.referenceName = "the file opened";
        open(o);
    };
    const MsgAnswer yes = MsgAnswer::Yes;
    const MsgAnswer no = MsgAnswer::No;
    const MsgAnswer cancel = MsgAnswer::Cancel;
    const struct {
        const char* name;
        std::optional<int> dirty;
        std::vector<MsgAnswer> answers;
        std::vector<const char*> files;  // the file dialogs' answers in the folder; then cancel
        Step run;
    } flows[] = {
        // clang-format off
        {"Save As MAY OFFICE", 1, {}, {"MAY OFFICE"}, saveAs},
        {"Save As june.DKO", 1, {}, {"june.DKO"}, saveAs},
        {"Save As plan.txt", 1, {}, {"plan.txt"}, saveAs},
        {"Save As front_desk-rota", 1, {}, {"front_desk-rota"}, saveAs},
        {"Save As abc, too short for an extension", 1, {}, {"abc"}, saveAs},
        {"Save As abcd", 1, {}, {"abcd"}, saveAs},
        {"Save As cancelled", 1, {}, {}, saveAs},
        {"New, unchanged since the start", std::nullopt, {}, {}, makeNew},
        {"New, saved", 0, {}, {}, makeNew},
        {"New, changed: Yes, saved first", 1, {yes}, {"saved first"}, makeNew},
        {"New, changed: Yes, the save cancelled", 1, {yes}, {}, makeNew},
        {"New, changed: No", 1, {no}, {}, makeNew},
        {"New, changed: Cancel", 1, {cancel}, {}, makeNew},
        {"Open, changed: Yes, saved first, the open cancelled", 1, {yes}, {"saved first"}, open},
        {"Open, changed: Yes, both cancelled", 1, {yes}, {}, open},
        {"Open, changed: No, the open cancelled", 1, {no}, {}, open},
        {"Open, changed: Cancel", 1, {cancel}, {}, open},
        {"Open the example office", 1, {no}, {"given/chosen.dko"}, openExample},
        {"Open a damaged file", 1, {no}, {"given/damaged.dko"}, openOverNone},
        {"Open bytes that are no profile", 1, {no}, {"given/noise.dko"}, openOverNone},
        {"Open another version", 1, {no}, {"given/old.dko"}, openOverNone},
        {"Open another version over a schedule", 1, {no}, {"given/old.dko"}, open},
        {"Open a folder", 1, {no}, {"given/folder.dko"}, openOverNone},
        {"Open a file that is not there", 1, {no}, {"given/absent.dko"}, openOverNone},
        {"Open from the command line", std::nullopt, {}, {}, openNamed("given/chosen.dko")},
        {"Open a hidden file from the command line", std::nullopt, {}, {}, openNamed("given/.hidden.dko")},
        {"Open a missing file from the command line", std::nullopt, {}, {}, openNamed("given/absent.dko")},
        {"Close, unchanged since the start", std::nullopt, {}, {}, roadOut(closeMainWindow)},
        {"Close, saved", 0, {}, {}, roadOut(closeMainWindow)},
        {"Close, changed: Yes, saved", 1, {yes}, {"last words"}, roadOut(closeMainWindow)},
        {"Close, changed: Yes, the save cancelled", 1, {yes}, {}, roadOut(closeMainWindow)},
        {"Close, changed: No", 1, {no}, {}, roadOut(closeMainWindow)},
        {"Close, changed: Cancel", 1, {cancel}, {}, roadOut(closeMainWindow)},
        {"Exit, unchanged since the start", std::nullopt, {}, {}, roadOut(exitProgram)},
        {"Exit, saved", 0, {}, {}, roadOut(exitProgram)},
        {"Exit, changed: Yes, saved", 1, {yes}, {"last words"}, roadOut(exitProgram)},
        {"Exit, changed: Yes, the save cancelled", 1, {yes}, {}, roadOut(exitProgram)},
        {"Exit, changed: No", 1, {no}, {}, roadOut(exitProgram)},
        {"Month forward over December", std::nullopt, {}, {}, stepMonth(12, 2026, false, {-1})},
        {"Month back over January", std::nullopt, {}, {}, stepMonth(1, 2027, false, {1})},
        {"Month two steps back", std::nullopt, {}, {}, stepMonth(3, 2027, false, {1, 2})},
        {"Month forward, Yes to erasing", std::nullopt, {yes}, {}, stepMonth(5, 2027, true, {-1})},
        {"Month forward, No to erasing", std::nullopt, {no}, {}, stepMonth(5, 2027, true, {-1})},
        {"Month forward after a No", std::nullopt, {no, yes}, {}, stepMonth(5, 2027, true, {-1, -2})},
        {"Month dragged", std::nullopt, {}, {}, stepMonth(5, 2027, false, {-7})},
        {"Month forward over the last year", std::nullopt, {}, {}, stepMonth(12, INT_MAX, false, {-1})},
        {"Month back over the first year", std::nullopt, {}, {}, stepMonth(1, INT_MIN, false, {1})},
        {"Add where the name sorts, No to the capitals", 0, {no}, {}, edit(-1, "Ana", "de la Cruz", "ana@office.example")},
        {"Change to where the new name sorts", 0, {}, {}, edit(0, "Ann", "Young", "ann@office.example")},
        {"Change the address alone", 0, {}, {}, edit(1, "Bo", "Baker", "bo@office.example")},
        {"Add without a last name", 0, {}, {}, edit(-1, "Kim", "")},
        {"Change without a first name", 0, {}, {}, edit(1, "", "Baker")},
        {"Add a name in the list in other capitals", 0, {}, {}, edit(-1, "BO", "baker")},
        {"Add a name in the list after an", 0, {}, {}, edit(-1, "Ann", "Adams")},
        {"Change to a name in the list", 0, {}, {}, edit(1, "ann", "ADAMS")},
        {"Add with an inner capital, Yes to correcting it", 0, {yes}, {}, edit(-1, "Ian", "McDonald")},
        {"Change to a first name in small letters, Yes to correcting it", 0, {yes}, {}, edit(1, "bo", "Baker")},
        {"Delete the first agent", 0, {yes}, {}, remove(0)},
        {"Delete the last agent", 0, {yes}, {}, remove(1)},
        {"Delete, No", 0, {no}, {}, remove(1)},
        {"Delete with no agent chosen", 0, {}, {}, remove(-1)},
        {"Look up the full name", 0, {}, {}, lookUp("Wei", "Chen", "", {})},
        {"Look up the last name alone, in capitals", 0, {}, {}, lookUp("", " CHEN ", "", {})},
        {"Look up the address typed", 0, {}, {}, lookUp("X", "Y", "ann.k@example.org", {})},
        {"Look up a name with two addresses", 0, {}, {}, lookUp("Anna", "Fischer", "", 1)},
        {"Look up a name with two addresses, Cancel", 0, {}, {}, lookUp("Anna", "Fischer", "", std::nullopt)},
        {"Look up what is no address", 0, {}, {}, lookUp("Anna", "Fischer", "typed", {})},
        // clang-format on
    };
    for (const auto& flow : flows) {
        SCOPED_TRACE(flow.name);
        Office office;
        office.ws.gDirty = flow.dirty;
        office.s.dialogs.answers.assign(flow.answers.begin(), flow.answers.end());
        for (const char* file : flow.files) {
            office.s.dialogs.fileAnswers.push_back(office.path(QString::fromUtf8(file)));
        }
        flow.run(office);
        expectTranscript(office.transcript(), "shell/golden/flows.txt",
                         QString::fromUtf8(flow.name), office.home.path());
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
