#include "core/model/shifttime.h"

#include <gtest/gtest.h>

// The table of texts read is tests/core/model/golden/shifttimes.tsv, checked through the
// headless tool. What the tool cannot show: a text that fails empties the outputs it was
// given, whatever they held.
TEST(ShiftTime, AFailureEmptiesTheOutputs) {
    for (const char* text : {"", "Closed", "9-11:30am", "10pm-6am"}) {
        QString start = QStringLiteral("stale");
        QString end = QStringLiteral("stale");
        EXPECT_FALSE(modInterpretShiftTime(QString::fromUtf8(text), start, end)) << text;
        EXPECT_TRUE(start.isEmpty() && end.isEmpty()) << text;
    }
}

TEST(ShiftTime, OrdinalWordReducesTheNumberToItsLastDigit) {
    const struct {
        int n;
        int reduced;
        const char* word;
    } cases[] = {
        {0, 0, ""},  {1, 1, "first"},  {6, 6, "sixth"}, {9, 9, "ninth"},
        {10, 0, ""}, {13, 3, "third"}, {20, 0, ""},     {26, 6, "sixth"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.n);
        int n = c.n;
        EXPECT_EQ(modOrdinalWord(n).toStdString(), c.word);
        EXPECT_EQ(n, c.reduced);
    }
}
