#include "core/model/shifttime.h"

#include <gtest/gtest.h>

namespace {

struct ShiftTimeCase {
    const char* text;
    bool ok;
    const char* start;
    const char* end;
};

// The outputs start out stale, so a failure must be seen to empty them.
void expectInterpreted(const ShiftTimeCase& c) {
    SCOPED_TRACE(c.text);
    QString start = QStringLiteral("stale");
    QString end = QStringLiteral("stale");
    EXPECT_EQ(modInterpretShiftTime(QString::fromUtf8(c.text), start, end), c.ok);
    EXPECT_EQ(start.toStdString(), c.start);
    EXPECT_EQ(end.toStdString(), c.end);
}

TEST(ShiftTime, InterpretsTheTypicalTexts) {
    const ShiftTimeCase cases[] = {
        {"9am-11:30am", true, "09:00 AM", "11:30 AM"},
        {"9 AM to 5 PM", true, "09:00 AM", "05:00 PM"},
        {"9:00 a.m. - 5:00 p.m.", true, "09:00 AM", "05:00 PM"},
        {"Noon-5pm", true, "12:00 PM", "05:00 PM"},
        {"12noon-5pm", true, "12:00 PM", "05:00 PM"},
        {"12:00noon-5pm", true, "12:00 PM", "05:00 PM"},
        {"Midnight-9am", true, "12:00 AM", "09:00 AM"},
        {"12midnight-noon", true, "12:00 AM", "12:00 PM"},
        {"9am-12pm, 1pm-5pm", true, "09:00 AM", "12:00 PM"},
        {"9-11:30am", false, "", ""},
        {"9am-5", false, "", ""},
        {"9a-5p", false, "", ""},
        {"Closed", false, "", ""},
        {"10pm-6am", false, "", ""},
        {"6pm-midnight", false, "", ""},
        {"Noon-midnight", false, "", ""},
        {"9am-9am", false, "", ""},
        {"Noon-noon", false, "", ""},
        {"12:00 noon-5pm", false, "", ""},
        {"Late 9am-5pm", false, "", ""},
    };
    for (const ShiftTimeCase& c : cases) {
        expectInterpreted(c);
    }
}

TEST(ShiftTime, EdgeCases) {
    const ShiftTimeCase cases[] = {
        // Case makes no difference.
        {"9AM-5PM", true, "09:00 AM", "05:00 PM"},
        {"9aM-5Pm", true, "09:00 AM", "05:00 PM"},
        {"MIDNIGHT-NOON", true, "12:00 AM", "12:00 PM"},
        // Punctuation between and inside the times is dropped, but it joins digits that it
        // separated.
        {"9 : 30 a.m., to 5 p.m.", true, "09:30 AM", "05:00 PM"},
        {"9.30am-5pm", false, "", ""},
        {"", false, "", ""},
        // Seconds are read and dropped, before the difference is taken.
        {"9:00:30am-5pm", true, "09:00 AM", "05:00 PM"},
        {"9:00:30am-9:00:45am", false, "", ""},
        {"9:00:60am-5pm", false, "", ""},
        // Only the first two times count; whatever follows is ignored.
        {"8am-9am-10am", true, "08:00 AM", "09:00 AM"},
        {"9am-5pm Sat 10am-2pm", true, "09:00 AM", "05:00 PM"},
        // Only the first occurrence of a word is replaced. The letter that 12:00noon leaves
        // behind completes a second noon.
        {"Noon, noon-5pm", true, "12:00 PM", "05:00 PM"},
        {"12:00noonoon-5pm", false, "", ""},
        // Letters A, M and P ahead of the first time spoil it, even with no digits; others
        // do not.
        {"Shift 9am-5pm", true, "09:00 AM", "05:00 PM"},
        {"Morning 9am-noon", false, "", ""},
        {"Day 9am-5pm", false, "", ""},
        {"am-5pm", false, "", ""},
        // Hours 1 to 12 with minutes 0 to 59; 12 AM is midnight and 12 PM noon.
        {"9:5am-10am", true, "09:05 AM", "10:00 AM"},
        {"09:00am-5pm", true, "09:00 AM", "05:00 PM"},
        {"12am-1am", true, "12:00 AM", "01:00 AM"},
        {"11am-12pm", true, "11:00 AM", "12:00 PM"},
        {"11:59am-12pm", true, "11:59 AM", "12:00 PM"},
        {"11pm-12am", false, "", ""},
        {"0:30am-5pm", false, "", ""},
        {"9am-13:00pm", false, "", ""},
        {"9:60am-11am", false, "", ""},
        {"009am-5pm", false, "", ""},
    };
    for (const ShiftTimeCase& c : cases) {
        expectInterpreted(c);
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

}  // namespace
