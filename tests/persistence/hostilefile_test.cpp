#include "core/model/calendar.h"
#include "core/model/session.h"
#include "core/model/workspace.h"
#include "core/services/textfile.h"
#include "fakes.h"
#include "persistence/workspacefile.h"

#include <QRandomGenerator>
#include <QTemporaryDir>

#include <functional>

#include <gtest/gtest.h>

namespace {

QByteArray valid(const QByteArray& sections) {
    return sections + "[Settings]\r\nVersion=4.0.10\r\nCurrent Month=1\r\nCurrent Year=2027\r\n";
}

struct Case {
    const char* what;
    std::function<QByteArray()> bytes;
    std::function<void(const Workspace&)> check;
};

}  // namespace

// Damaged and hostile files never crash or hang a load and never write out of bounds (the
// sanitizer build watches that; indices out of every range, absurd counts and lone carriage
// returns are golden files of their own). What a load keeps of one is a workspace like any
// other: it saves, and what it saves reads back with the same agents and weekly table.
TEST(HostileFiles, LoadWithoutHarm) {
    const Case cases[] = {
        {"thousands of agents stop where the key names fill their buffer",
         [] {
             QByteArray text = "[Agents]\r\n";
             for (int i = 1; i <= 5000; ++i) {
                 text += QByteArray::number(i) + "=Name" + QByteArray::number(i) + "|Same|\r\n";
             }
             return valid(text);
         },
         [](const Workspace& w) {
             EXPECT_EQ(w.gAgentCount, 1859);
             EXPECT_EQ(w.gAgentKey[1859], QStringLiteral("Name1859"));
             EXPECT_EQ(w.gAgentFirstKey[1], QStringLiteral("Same (Name1.)"));
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
    };
    QTemporaryDir dir;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        const QString path = dir.filePath(QStringLiteral("hostile.dko"));
        ASSERT_TRUE(writeFileBytes(path, c.bytes()));
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
