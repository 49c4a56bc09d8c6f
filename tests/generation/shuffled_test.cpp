#include "core/model/workspace.h"
#include "fakes.h"
#include "generation/engines.h"
#include "offices.h"
#include "tables.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>

namespace {

// The number of draws between two states of the random sequence.
int drawsBetween(std::uint32_t from, std::uint32_t to) {
    RandomSequence random(from);
    int draws = 0;
    while (random.state() != to && draws < 1000000) {
        random.next();
        ++draws;
    }
    return draws;
}

}  // namespace

// When nobody can be placed the position still gets the last agent drawn, after 10000
// draws for it, and every other cell is erased. The ratio switches the same-day rule on at
// 1 and the adjacent-day rule at 2, which one agent shows at once. The count the caller
// passes goes on over the month: its 1001st draw puts every agent back in the deck and is
// thrown away.
TEST(ShuffledEngine, FillsEveryPositionEvenWhenNobodyFits) {
    for (const QStringList& row : tableRows("generation/golden/tables/shuffled.tsv")) {
        SCOPED_TRACE(row.join(QLatin1Char(' ')).toStdString());
        const int agents = row[0].toInt();
        const int agentsPerShift = row[1].toInt();
        QTemporaryDir home;
        TestServices s;
        Workspace ws;
        makeOffice(ws, 2023, 3, agents, home.path());
        setTable(ws, row[4].toInt(), agentsPerShift);
        ws.gAgentRatio = row[2].toDouble();
        ws.gHoliday[12] = 1;
        for (int a = 1; a <= agents && row[3] != QStringLiteral("0"); ++a) {
            ws.gVacation[a][row[3].toInt()] = 1;
        }
        fillWithOldSchedule(ws);
        s.ctx.random.setState(4242);
        int drawCounter = 990;
        modGenerateShuffled(ws, s.ctx, drawCounter);

        // Every position holds a key, and every other cell is erased.
        int filled = 0;
        for (const QString& cell : ws.gSchedule) {
            filled += cell.isEmpty() ? 0 : 1;
            EXPECT_TRUE(cell.isEmpty() ||
                        std::count(ws.gAgentKey.begin(), ws.gAgentKey.end(), cell))
                << cell.toStdString();
        }
        EXPECT_EQ(filled, 30 * agentsPerShift * row[4].toInt());
        const int draws = drawsBetween(4242, s.ctx.random.state());
        EXPECT_GE(draws, row[5].toInt());
        EXPECT_LE(draws, row[6].toInt());
        EXPECT_TRUE(row[7].toInt() < 0 || drawCounter == row[7].toInt()) << drawCounter;
        EXPECT_EQ(logText(ws),
                  "[09:14:03]     Generating a schedule using the Shuffled engine\r\n");
    }
}
