#include "core/services/randomsequence.h"

#include <gtest/gtest.h>

#include <QDateTime>

// From the state 327680 the sequence is the well-known one: 0.7055475, 0.533424, 0.5795186.
TEST(RandomSequence, FollowsTheWellKnownSequence) {
    RandomSequence random(327680);
    EXPECT_FLOAT_EQ(random.next(), 0.7055475F);
    EXPECT_FLOAT_EQ(random.next(), 0.533424F);
    EXPECT_FLOAT_EQ(random.next(), 0.5795186F);
}

// The highest draw a 24-bit state can give still picks the last agent, never one beyond.
TEST(RandomSequence, AnAgentDrawStaysInTheList) {
    for (const int count : {1, 2, 7, 1000}) {
        for (std::uint32_t state = 0; state < 5000; ++state) {
            RandomSequence random(state * 3355U);
            const int agent = random.drawAgent(count);
            ASSERT_GE(agent, 1);
            ASSERT_LE(agent, count);
        }
    }
}

TEST(RandomSequence, SeedsOnlyFromTheStateRange) {
    const struct {
        const char* text;
        std::optional<std::uint32_t> seed;
    } cases[] = {{"0", 0U},     {"16777215", 16777215U},
                 {" 42 ", 42U}, {"16777216", {}},
                 {"-1", {}},    {"12x", {}},
                 {"", {}}};
    for (const auto& c : cases) {
        EXPECT_EQ(parseSeed(QString::fromUtf8(c.text)), c.seed) << c.text;
    }
}

TEST(RandomSequence, AGivenSeedWinsOverTheClock) {
    const QDateTime noon(QDate(2026, 11, 23), QTime(12, 0));
    EXPECT_EQ(startingSeed(noon, 1234U), 1234U);
    EXPECT_LT(startingSeed(noon, std::nullopt), RandomSequence::kStates);
    EXPECT_NE(startingSeed(noon, std::nullopt), startingSeed(noon.addMSecs(1), std::nullopt));
}
