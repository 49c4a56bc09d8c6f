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
