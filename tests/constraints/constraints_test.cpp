#include "constraints/allconstraints.h"
#include "constraints/daypicker.h"
#include "constraints/restrictions.h"
#include "constraints/shifttable.h"
#include "core/model/workspace.h"
#include "fakes.h"
#include "offices.h"
#include "persistence/workspacefile.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

// The proposed names, in both tables, where the order of the rules decides.
TEST(DayPicker, TheLastMatchingRuleProposesTheName) {
    const struct {
        int year, month, day;
        const char* holiday;
        const char* noted;
    } cases[] = {
        {2027, 1, 18, "Martin Luther King, Jr. Day", "Martin Luther King, Jr. Day"},
        {2027, 2, 1, "President's Day", "President's Day"},
        {2027, 2, 22, "Washington's Birthday", "Washington's Birthday"},
        {2022, 2, 14, "Valentine's Day", "President's Day"},
        {2027, 5, 9, "Mother's Day", "Mother's Day"},
        // May 2027 begins on a Saturday: its fourth Monday, not its last, is proposed.
        {2027, 5, 24, "Memorial Day", "Memorial Day"},
        {2027, 5, 31, "Office Holiday", ""},
        {2028, 5, 29, "Memorial Day", "Memorial Day"},
        {2027, 6, 20, "Father's Day", "Father's Day"},
        {2027, 9, 6, "Labor Day", "Labor Day"},
        {2027, 11, 1, "Office Holiday", "All Saints' Day"},
        {2027, 11, 25, "Thanksgiving Day", "Thanksgiving Day"},
        {2027, 12, 25, "Christmas Day", "Christmas"},
        {2027, 3, 3, "Office Holiday", ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(QStringLiteral("%1-%2-%3").arg(c.year).arg(c.month).arg(c.day).toStdString());
        Workspace ws;
        openMonth(ws, c.year, c.month);
        ws.gEditDay = c.day;
        ws.gDayPickerMode = kPickHolidays;
        EXPECT_EQ(proposedDayName(ws), QString::fromUtf8(c.holiday));
        ws.gDayPickerMode = kPickNotedDays;
        EXPECT_EQ(proposedDayName(ws), QString::fromUtf8(c.noted));
    }
}

// A name is kept as the file gives it back; an empty answer or Cancel leaves the day as it
// was, though the selection's log line stays.
TEST(DayPicker, ANameIsAskedForAndKeptAsTheFileReadsIt) {
    QTemporaryDir home;
    TestServices s;
    Workspace ws;
    openMonth(ws, 2027, 12, home.path());
    ws.gDayPickerMode = kPickHolidays;
    const QString longName(5000, QLatin1Char('x'));
    s.dialogs.inputAnswers = {QStringLiteral("  Party \"night\"\r\nsecond line"), QString(),
                              std::nullopt, longName};
    EXPECT_TRUE(clickPickerDay(ws, s.ctx, 24, false));
    EXPECT_EQ(ws.gHolidayName[24], QStringLiteral("Party \"night\""));
    EXPECT_EQ(s.dialogs.inputsShown.front(),
              std::pair(QStringLiteral("Enter the name of the holiday on December 24."),
                        QStringLiteral("Christmas Eve")));
    EXPECT_TRUE(logged(ws, QStringLiteral("Naming the holiday on December 24 xDayDesc")));
    EXPECT_FALSE(clickPickerDay(ws, s.ctx, 25, false));
    EXPECT_FALSE(clickPickerDay(ws, s.ctx, 25, false));
    EXPECT_TRUE(ws.gHolidayName[25].isEmpty());
    EXPECT_TRUE(logged(ws, QStringLiteral("Selected December 25 as a holiday")));
    EXPECT_TRUE(clickPickerDay(ws, s.ctx, 26, false));
    EXPECT_FALSE(clickPickerDay(ws, s.ctx, 24, true));
    EXPECT_TRUE(logged(ws, QStringLiteral("Deselected December 24 as a holiday")));

    PickedDays picks{};
    picks[24] = picks[26] = true;
    savePickedDays(ws, s.ctx, picks);
    Workspace reread;
    openMonth(reread, 2027, 12, home.path());
    ASSERT_TRUE(modLoadWorkspace(reread, s.ctx, QString()));
    EXPECT_EQ(reread.gHolidayName[24], ws.gHolidayName[24]);
    EXPECT_EQ(reread.gHolidayName[26], ws.gHolidayName[26]);
    EXPECT_LT(reread.gHolidayName[26].size(), longName.size());
}

// Turning to another agent stores the picks of the one on show at once; the list's own
// setting and the agent on show change nothing.
TEST(DayPicker, AnotherAgentSavesThePicksOfTheOneOnShow) {
    QTemporaryDir home;
    TestServices s;
    Workspace ws;
    makeOffice(ws, 2027, 3, 3, home.path());
    ws.gDayPickerMode = kPickVacations;
    ws.gDayPickerAgent = 2;
    PickedDays picks{};
    picks[3] = picks[4] = picks[5] = picks[9] = picks[31] = true;
    EXPECT_FALSE(switchVacationAgent(ws, s.ctx, -1, picks));
    EXPECT_FALSE(switchVacationAgent(ws, s.ctx, 1, picks));
    EXPECT_EQ(ws.gVacation[2][3], 0);
    EXPECT_TRUE(switchVacationAgent(ws, s.ctx, 0, picks));
    EXPECT_EQ(ws.gDayPickerAgent, 1);
    EXPECT_EQ(pickedDays(ws), PickedDays{});

    Workspace reread;
    openMonth(reread, 2027, 3, home.path());
    ASSERT_TRUE(modLoadWorkspace(reread, s.ctx, QString()));
    EXPECT_EQ(vacationLines(reread),
              texts({"Ann2 Agent002", "    March 3-5", "    March 9", "    March 31"}));
}

// The editor's OK: the question for no shifts, the checks in order with their messages, and
// what reaches the table.
TEST(ShiftEditor, OKChecksTheShiftsInOrderAndKeepsWhatLiesAbove) {
    const struct {
        const char* name;
        int count;
        std::array<const char*, 3> texts;
        std::deque<MsgAnswer> answers;
        DaySaveResult::End end;
        int shift;
        int storedCount;
        const char* firstBox;  // the start of the first box's text, or ""
    } cases[] = {
        // clang-format off
        {"two good shifts", 2, {" 9am-1pm ", "1pm-5pm", ""}, {}, DaySaveResult::End::Saved, 0, 2, ""},
        {"no shifts, No", 0, {}, {MsgAnswer::No}, DaySaveResult::End::Kept, 0, 3,
         "If you proceed, no agents will receive shifts on Monday."},
        {"no shifts, Yes", 0, {}, {MsgAnswer::Yes}, DaySaveResult::End::Saved, 0, 0, "If you"},
        {"bad before empty", 2, {"soon", "", ""}, {MsgAnswer::Yes}, DaySaveResult::End::FixShift, 1, 3,
         "The time for the first shift could not be interpreted."},
        {"bad kept", 2, {"9am-1pm", "soon", ""}, {MsgAnswer::No}, DaySaveResult::End::Saved, 0, 2,
         "The time for the second shift"},
        {"empty", 3, {"9am-1pm", "1pm-5pm", "  "}, {}, DaySaveResult::End::FixShift, 3, 3,
         "Please fill in the time for the third shift."},
        {"separator", 1, {"9am|5pm", "", ""}, {}, DaySaveResult::End::FixShift, 1, 3,
         "The time for the first shift cannot be kept"},
        {"bad, then a line break", 2, {"soon", "9am\n5pm", ""}, {MsgAnswer::No},
         DaySaveResult::End::FixShift, 2, 3, "The time for the first shift could not"},
        // clang-format on
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        QTemporaryDir home;
        TestServices s;
        Workspace ws;
        makeOffice(ws, 2027, 3, 2, home.path());
        setTable(ws, 3, 1);
        ws.gShiftText[1] = {QString(), QStringLiteral("a"), QStringLiteral("b"),
                            QStringLiteral("c")};
        s.dialogs.answers = c.answers;
        DayShifts day;
        day.count = c.count;
        for (int n = 0; n < 3; ++n) {
            day.texts[n] = QString::fromUtf8(c.texts[n]);
            day.highestSlots[n] = n;
        }
        const DaySaveResult result = saveDayShifts(ws, s.ctx, 1, day);
        EXPECT_EQ(result.end, c.end);
        EXPECT_EQ(result.shift, c.shift);
        EXPECT_EQ(ws.gShiftCount[1], c.storedCount);
        const QStringList shown = s.dialogs.texts();
        EXPECT_EQ(shown.isEmpty(), *c.firstBox == '\0');
        if (!shown.isEmpty()) {
            EXPECT_TRUE(shown.front().simplified().startsWith(QString::fromUtf8(c.firstBox)))
                << shown.front().toStdString();
        }
        if (c.end == DaySaveResult::End::Saved && c.count > 0) {
            EXPECT_EQ(ws.gShiftText[1][1], QString::fromUtf8(c.texts[0]).trimmed());
        }
        // The shift above the chosen number keeps its text.
        EXPECT_EQ(ws.gShiftText[1][3], c.end == DaySaveResult::End::Saved && c.count == 3
                                           ? QString::fromUtf8(c.texts[2])
                                           : QStringLiteral("c"));
    }
}

// OK stores the boxes of the shifts each weekday has; a restriction of a shift that a weekday
// no longer has stays, and the view of all constraints lists it.
TEST(Restrictions, OnlyTheShiftsOnShowAreStored) {
    QTemporaryDir home;
    TestServices s;
    Workspace ws;
    makeOffice(ws, 2027, 3, 3, home.path());
    setTable(ws, 2, 1);
    ws.gRestriction[3][2][4] = 1;
    ws.gRestrictionAgent = 3;
    RestrictionBoxes boxes{};
    boxes[1][1] = boxes[2][2] = true;
    saveRestrictions(ws, s.ctx, boxes);
    EXPECT_TRUE(logged(ws, QStringLiteral("Saving shift restrictions for  ")));
    Workspace reread;
    openMonth(reread, 2027, 3, home.path());
    ASSERT_TRUE(modLoadWorkspace(reread, s.ctx, QString()));
    EXPECT_EQ(restrictionLines(reread),
              QStringList({QStringLiteral("Ann3 Agent003"),
                           QStringLiteral("    Monday, ") + ws.gShiftText[1][2],
                           QStringLiteral("    Tuesday, ") + ws.gShiftText[2][4]}));
}

// The calendar's own leap years hold a 29th of February, which is stored and read back.
TEST(DayPicker, TheTwentyNinthOfAnOwnLeapFebruaryIsKept) {
    QTemporaryDir home;
    TestServices s;
    Workspace ws;
    openMonth(ws, 2100, 2, home.path());
    ws.gEditDay = 29;
    ws.gHolidayName[29] = proposedDayName(ws);
    savePickedDays(ws, s.ctx, [] {
        PickedDays p{};
        p[29] = true;
        return p;
    }());
    Workspace reread;
    openMonth(reread, 2100, 2, home.path());
    ASSERT_TRUE(modLoadWorkspace(reread, s.ctx, QString()));
    EXPECT_EQ(holidayLines(reread), texts({"President's Day, February 29"}));
}
