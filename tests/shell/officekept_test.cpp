#include "constraints/daypicker.h"
#include "constraints/restrictions.h"
#include "core/model/session.h"
#include "core/model/workspace.h"
#include "fakes.h"
#include "offices.h"
#include "persistence/backupring.h"
#include "persistence/configdump.h"
#include "persistence/profileapi.h"
#include "persistence/workspacefile.h"
#include "shell/agentedit.h"
#include "shell/monthchange.h"
#include "shell/programstart.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>

// Each road that replaces the office in the working file, at the start of a run or during it
// after a change was saved, leaves the file as it stood in the backup ring, and restoring
// that copy brings it back. The roads say what they always said, and no more. The roads of
// the start are a file with more agents than the reader reads back and, in the settings
// store, a group of another tool beside the program's own.
TEST(BackupRing, NoRoadLosesTheOffice) {
    const struct {
        const char* file;
        std::function<void(Workspace&, TestServices&)> road;
        QStringList messages = {};
    } roads[] = {
        {"office.ini",
         [](Workspace& ws, TestServices& s) {
             s.dialogs.fileAnswers = {ws.gAppPath + QStringLiteral("/Desko40.dpm")};
             openConfigurationDump(ws, s.ctx);
         }},
        {"office.ini",
         [](Workspace& ws, TestServices& s) {
             s.dialogs.answers = {MsgAnswer::Yes};
             changeMonth(ws, s.ctx, ws.gScrollValue - 1);
         },
         {QStringLiteral("Changing the date of the calendar will erase the schedule, as well as "
                         "all holidays, vacations, and notes.  Do you want to proceed anyway?")}},
        {"roads/more-agents-than-read.ini", nullptr},
    };
    for (const auto& c : roads) {
        SCOPED_TRACE(c.file);
        QTemporaryDir home;
        TestServices s;
        s.ctx.launch.home = home.path();
        s.clock.time = QDateTime(QDate(2027, 1, 10), QTime(9, 0));
        const QString ini = home.filePath(QStringLiteral("Desko40.ini"));
        const QString given = QStringLiteral(DESKO_GOLDEN_DIR "/") + QLatin1String(c.file);
        ASSERT_TRUE(QFile::copy(given, ini));
        QString before = fileText(given);
        s.registry.setValue(kRegistryBase + QStringLiteral("\\Settings"), {}, {});
        if (!c.road) {  // beside the store of this version, a group of another tool
            s.registry.setValue(kRegistryBase + QStringLiteral("\\Tool"), {}, {});
        }
        Workspace ws;
        prepareWorkspace(ws, s.ctx, QString());
        if (c.road) {
            ws.gAgentFirst[1] = QStringLiteral("Anne");
            modSaveWorkspace(ws, s.ctx, QString());
            before = fileText(ini);
            c.road(ws, s);
        }
        modSaveWorkspace(ws, s.ctx, QString());  // the close

        EXPECT_EQ(s.dialogs.texts(), s.dialogs.wrapped(c.messages));
        QString copy;
        for (const Backup& backup : listBackups(ini)) {
            copy = fileText(backup.path) == before ? backup.path : copy;
        }
        EXPECT_TRUE(restoreBackup(copy, ini, s.clock.now()));
        EXPECT_EQ(fileText(ini), before);
    }
}

// An office at the limit of the file: as many agents, vacation days and restrictions as the
// reader reads back. Each edit that would add a row (an agent; a vacation day on OK or on
// turning to another agent; a restriction) is refused with the line of the
// refusals' file that names the limit and what to do, and changes nothing; an edit that keeps
// the count goes through. A row more that reached the model all the same is never written.
TEST(RowLimits, AnEditBeyondWhatTheFileReadsBackIsRefused) {
    const QStringList refusals = golden("rowlimits.txt").split(QLatin1Char('\n'));
    PickedDays two{};
    two[1] = two[2] = true;
    PickedDays other{};
    other[2] = true;
    RestrictionBoxes boxes{};
    boxes[0][0] = boxes[1][0] = true;
    const std::function<bool(Workspace&, Context&)> edits[] = {
        [](auto& ws, auto& ctx) { return commitAgentEdit(ws, ctx, {}).insertedItem >= 0; },
        [&](auto& ws, auto& ctx) { return savePickedDays(ws, ctx, two); },
        [&](auto& ws, auto& ctx) { return switchVacationAgent(ws, ctx, 1, two); },
        [&](auto& ws, auto& ctx) { return saveRestrictions(ws, ctx, boxes); },
        [&](auto& ws, auto& ctx) { return savePickedDays(ws, ctx, other); },
        [](auto& ws, auto& ctx) {
            ws.gRestriction[1][2][1] = 1;
            return modSaveWorkspace(ws, ctx, QString());
        },
    };
    const int refusal[] = {0, 1, 1, 2, -1, -1};
    for (int e = 0; e < 6; ++e) {
        SCOPED_TRACE(e);
        QTemporaryDir home;
        TestServices s;
        Workspace ws;
        makeOffice(ws, 2027, 2, kMostRows, home.path());
        for (int agent = 1; agent <= kMostRows; ++agent) {
            ws.gVacation[agent][1] = ws.gRestriction[agent][0][1] = 1;
        }
        ws.gDayPickerMode = kPickVacations;
        ws.gDayPickerAgent = ws.gRestrictionAgent = 1;
        ASSERT_TRUE(modSaveWorkspace(ws, s.ctx, QString()));
        const QString before = fileText(ws.gConfigFile);

        EXPECT_EQ(edits[e](ws, s.ctx), e == 4);
        EXPECT_EQ(s.dialogs.texts(), s.dialogs.wrapped(refusals.mid(refusal[e], 1)));
        EXPECT_EQ(ws.gAgentCount + ws.gVacation[1][2] + ws.gRestriction[1][1][1],
                  kMostRows + (e == 4 ? 1 : 0));
        EXPECT_EQ(fileText(ws.gConfigFile) == before, e != 4);
    }
}
