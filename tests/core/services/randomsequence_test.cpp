#include "core/services/randomsequence.h"
#include "tables.h"

#include <gtest/gtest.h>

#include <QDateTime>

// From the state 327680 the sequence is the well-known one: 0.7055475, 0.533424, 0.5795186.
TEST(RandomSequence, FollowsTheWellKnownSequence) {
    RandomSequence random(327680);
    EXPECT_FLOAT_EQ(random.next(), 0.7055475F);
    EXPECT_FLOAT_EQ(random.next(), 0.533424F);
    EXPECT_FLOAT_EQ(random.next(), 0.5795186F);
}

// The highest draw, the one the state 16777215 gives, still picks the last agent and never
// one beyond; the lowest picks the first.
TEST(RandomSequence, AnAgentDrawStaysInTheList) {
    constexpr std::uint32_t kBeforeHighest = 12895468;
    RandomSequence highest(kBeforeHighest);
    EXPECT_EQ(highest.next(), 16777215.0F / 16777216.0F);
    EXPECT_EQ(highest.state(), RandomSequence::kStates - 1);
    for (const int count : {1, 2, 7, 1000, 16777215}) {
        RandomSequence random(kBeforeHighest);
        EXPECT_EQ(random.drawAgent(count), count) << count;
        random.setState(13497921);  // the state before 0
        EXPECT_EQ(random.drawAgent(count), 1) << count;
    }
}

TEST(RandomSequence, SeedsOnlyFromTheStateRange) {
    for (const QStringList& row : tableRows("core/services/golden/seeds.tsv")) {
        const std::optional<std::uint32_t> seed = parseSeed(row[0]);
        EXPECT_EQ(seed ? QString::number(*seed) : QString(), row.value(1)) << row[0].toStdString();
    }
}

TEST(RandomSequence, AGivenSeedWinsOverTheClock) {
    const QDateTime noon(QDate(2026, 11, 23), QTime(12, 0));
    EXPECT_EQ(startingSeed(noon, 1234U), 1234U);
    EXPECT_LT(startingSeed(noon, std::nullopt), RandomSequence::kStates);
    EXPECT_NE(startingSeed(noon, std::nullopt), startingSeed(noon.addMSecs(1), std::nullopt));
}
