#include "core/model/calendar.h"
#include "core/model/session.h"
#include "core/model/workspace.h"
#include "fakes.h"
#include "persistence/workspacefile.h"

#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <functional>

#include <gtest/gtest.h>

namespace {

QByteArray valid(const QByteArray& sections) {
    return sections + "[Settings]\r\nVersion=4.0.10\r\nCurrent Month=1\r\nCurrent Year=2027\r\n";
}

QByteArray rows(const QByteArray& section, int count, const std::function<QByteArray(int)>& row) {
    QByteArray text = "[" + section + "]\r\n";
    for (int i = 1; i <= count; ++i) {
        text += QByteArray::number(i) + "=" + row(i) + "\r\n";
    }
    return text;
}

const QByteArray kBadIndices[] = {"-1",    "-2147483649", "2147483648", "99999999999999999999",
                                  "1e300", "nan",         "inf",        "0x10",
                                  "",      " ",           "seven",      "\xff\xfe"};

QByteArray badIndexRows() {
    QByteArray agents = "[Agents]\r\n1=A|a|\r\n2=B|b|\r\n";
    QByteArray restrictions = "[Restrictions]\r\n";
    QByteArray vacations = "[Vacations]\r\n";
    QByteArray schedule = "[Schedule]\r\n";
    QByteArray holidays = "[Holidays]\r\n";
    QByteArray noted = "[Noted Days]\r\n";
    int n = 0;
    const auto row = [&n](const QByteArray& value) {
        return QByteArray::number(++n) + "=" + value + "\r\n";
    };
    for (const QByteArray& bad : kBadIndices) {
        const int first = n;
        restrictions += row(bad + "|1|1") + row("1|" + bad + "|1") + row("1|1|" + bad);
        n = first;
        vacations += row(bad + "|1") + row("1|" + bad);
        n = first;
        schedule += row(bad + "|1|0|X") + row("1|" + bad + "|0|X") + row("1|1|" + bad + "|X");
        holidays += bad + "=Bad day\r\n";
        noted += bad + "=Bad note\r\n";
    }
    holidays += "32=Past the names\r\n37=Last flag\r\n38=Past the flags\r\n";
    // A good row of each kind, so that reading visibly goes on past the bad ones.
    const int last = n;
    restrictions += row("2|6|6");
    n = last;
    vacations += row("2|31");
    n = last;
    schedule += row("38|6|4|Far corner");
    return valid(agents + restrictions + vacations + schedule + holidays + noted);
}

struct Case {
    const char* what;
    std::function<QByteArray()> bytes;
    std::function<void(const Workspace&)> check;
};

}  // namespace

// Damaged and hostile files never crash or hang a load and never write out of bounds (the
// sanitizer build watches that). What a load keeps of one is a workspace like any other: it
// saves, and what it saves reads back with the same agents and weekly table.
TEST(HostileFiles, LoadWithoutHarm) {
    const Case cases[] = {
        {"indices out of every range", badIndexRows,
         [](const Workspace& w) {
             EXPECT_EQ(w.gAgentCount, 2);
             EXPECT_EQ(w.gRestriction[2][6][6], 1);
             EXPECT_EQ(w.gVacation[2][31], 1);
             EXPECT_EQ(w.schedule(38, 6, 4), QStringLiteral("Far corner"));
             EXPECT_EQ(w.gHoliday[37], 1);
             EXPECT_TRUE(w.gHolidayName[31].isEmpty());
         }},
        {"thousands of agents stop where the key names fill their buffer",
         [] {
             return valid(rows("Agents", 5000,
                               [](int i) { return "Name" + QByteArray::number(i) + "|Same|"; }));
         },
         [](const Workspace& w) {
             EXPECT_EQ(w.gAgentCount, 1859);
             EXPECT_EQ(w.gAgentKey[1859], QStringLiteral("Name1859"));
             EXPECT_EQ(w.gAgentFirstKey[1], QStringLiteral("Same (Name1.)"));
         }},
        {"more shifts than a day holds, absurd agent counts",
         [] {
             return valid(rows("Monday Shifts", 40, [](int i) {
                 return "s" + QByteArray::number(i) + (i % 2 ? "|1e300" : "|-1e300");
             }));
         },
         [](const Workspace& w) {
             EXPECT_EQ(w.gShiftCount[1], 6);
             EXPECT_EQ(w.gShiftAgents[1][1], 4);
             EXPECT_EQ(w.gShiftAgents[1][2], 0);
         }},
        {"an 8 MB file of junk lines and one huge value",
         [] {
             QByteArray text = "[Titles]\r\nCalendar Notes=" + QByteArray(2 << 20, 'n') + "\r\n";
             const QByteArray junk = "this line means nothing to anybody at all\r\n";
             text.reserve(9 << 20);
             while (text.size() < (8 << 20)) {
                 text += junk;
             }
             return valid(text);
         },
         [](const Workspace& w) {
             EXPECT_EQ(w.gCalendarNotes.size(), 1023);
             EXPECT_EQ(w.gAgentCount, 0);
         }},
        {"binary garbage",
         [] {
             QRandomGenerator random(20261123);
             QByteArray text(1 << 20, '\0');
             for (char& byte : text) {
                 byte = static_cast<char>(random.bounded(256));
             }
             return valid("[Agents]\r\n" + text + "\r\n[Schedule]\r\n" + text.left(4096) + "\r\n");
         },
         [](const Workspace& w) { EXPECT_EQ(w.gScheduleGenerated, 1); }},
        {"line ends of a single carriage return make one long line",
         [] { return valid("[Agents]\r1=A|a|\r2=B|b|\r[Titles]\r\n"); },
         [](const Workspace& w) { EXPECT_EQ(w.gAgentCount, 0); }},
    };
    QTemporaryDir dir;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        const QString path = dir.filePath(QStringLiteral("hostile.dko"));
        {
            QFile file(path);
            ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
            file.write(c.bytes());
        }
        TestServices s;
        Workspace ws;
        modInitNameTables(ws);
        modInitSession(ws, dir.path());
        EXPECT_TRUE(modLoadWorkspace(ws, s.ctx, path));
        c.check(ws);
        const QString saved = dir.filePath(QStringLiteral("saved.dko"));
        ASSERT_TRUE(modSaveWorkspace(ws, s.ctx, saved));
        Workspace reread;
        openMonth(reread, 2000, 1, dir.path());
        ASSERT_TRUE(modLoadWorkspace(reread, s.ctx, saved));
        EXPECT_EQ(reread.gAgentCount, ws.gAgentCount);
        EXPECT_EQ(reread.gShiftCount, ws.gShiftCount);
        EXPECT_EQ(reread.gShiftAgents, ws.gShiftAgents);
        EXPECT_TRUE(s.dialogs.shown.empty());
    }
}
