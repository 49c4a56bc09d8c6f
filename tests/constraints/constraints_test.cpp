#include "constraints/allconstraints.h"
#include "constraints/daypicker.h"
#include "constraints/restrictions.h"
#include "constraints/shifttable.h"
#include "core/model/workspace.h"
#include "fakes.h"
#include "offices.h"
#include "persistence/workspacefile.h"
#include "tables.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <map>

namespace {

// A month in a home folder of its own, and its working file as the next start reads it.
class StoredMonth : public ::testing::Test {
protected:
    Workspace readAgain() {
        Workspace read;
        openMonth(read, ws.gCurrentYear, ws.gCurrentMonth, home.path());
        EXPECT_TRUE(modLoadWorkspace(read, s.ctx, QString()));
        return read;
    }

    QTemporaryDir home;
    TestServices s;
    Workspace ws;
};
using DayPicker = StoredMonth;
using Restrictions = StoredMonth;

}  // namespace

// The proposed names, in both tables, where the order of the rules decides.
TEST_F(DayPicker, TheLastMatchingRuleProposesTheName) {
    for (const QStringList& row : tableRows("constraints/golden/daynames.tsv")) {
        SCOPED_TRACE(row.join(u'-').toStdString());
        openMonth(ws, row[0].toInt(), row[1].toInt());
        ws.gEditDay = row[2].toInt();
        ws.gDayPickerMode = kPickHolidays;
        EXPECT_EQ(proposedDayName(ws), row[3]);
        ws.gDayPickerMode = kPickNotedDays;
        EXPECT_EQ(proposedDayName(ws), row.value(4));
    }
}

// A name is kept as the file gives it back; an empty answer or Cancel leaves the day as it
// was, though the selection's log line stays.
TEST_F(DayPicker, ANameIsAskedForAndKeptAsTheFileReadsIt) {
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
    const Workspace reread = readAgain();
    EXPECT_EQ(reread.gHolidayName[24], ws.gHolidayName[24]);
    EXPECT_EQ(reread.gHolidayName[26], ws.gHolidayName[26]);
    EXPECT_LT(reread.gHolidayName[26].size(), longName.size());
}

// Turning to another agent stores the picks of the one on show at once; the list's own
// setting and the agent on show change nothing.
TEST_F(DayPicker, AnotherAgentSavesThePicksOfTheOneOnShow) {
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

    const Workspace reread = readAgain();
    EXPECT_EQ(vacationLines(reread),
              texts({"Ann2 Agent002", "    March 3-5", "    March 9", "    March 31"}));
}

// The editor's OK: the question for no shifts, the checks in order with their messages, and
// what reaches the table.
TEST(ShiftEditor, OKChecksTheShiftsInOrderAndKeepsWhatLiesAbove) {
    const std::map<QString, DaySaveResult::End> ends = {
        {QStringLiteral("Saved"), DaySaveResult::End::Saved},
        {QStringLiteral("Kept"), DaySaveResult::End::Kept},
        {QStringLiteral("FixShift"), DaySaveResult::End::FixShift}};
    for (const QStringList& row : tableRows("constraints/golden/shiftedits.tsv")) {
        SCOPED_TRACE(row[0].toStdString());
        QTemporaryDir home;
        TestServices s;
        Workspace ws;
        makeOffice(ws, 2027, 3, 2, home.path());
        setTable(ws, 3, 1);
        ws.gShiftText[1] = {QString(), QStringLiteral("a"), QStringLiteral("b"),
                            QStringLiteral("c")};
        for (const QChar answer : row[5]) {
            s.dialogs.answers.push_back(answer == u'Y' ? MsgAnswer::Yes : MsgAnswer::No);
        }
        DayShifts day;
        day.count = row[1].toInt();
        for (int n = 0; n < 3; ++n) {
            day.texts[n] = row[2 + n];
            day.highestSlots[n] = n;
        }
        const DaySaveResult result = saveDayShifts(ws, s.ctx, 1, day);
        const bool saved = row[6] == u"Saved";
        EXPECT_EQ(result.end, ends.at(row[6]));
        EXPECT_EQ(result.shift, row[7].toInt());
        EXPECT_EQ(ws.gShiftCount[1], row[8].toInt());
        const QStringList shown = s.dialogs.texts();
        EXPECT_EQ(shown.isEmpty(), row.value(9).isEmpty());
        if (!shown.isEmpty()) {
            EXPECT_TRUE(shown.front().simplified().startsWith(row[9]))
                << shown.front().toStdString();
        }
        if (saved && day.count > 0) {
            EXPECT_EQ(ws.gShiftText[1][1], row[2].trimmed());
        }
        // The shift above the chosen number keeps its text.
        EXPECT_EQ(ws.gShiftText[1][3], saved && day.count == 3 ? row[4] : QStringLiteral("c"));
    }
}

// OK stores the boxes of the shifts each weekday has; a restriction of a shift that a weekday
// no longer has stays, and the view of all constraints lists it.
TEST_F(Restrictions, OnlyTheShiftsOnShowAreStored) {
    makeOffice(ws, 2027, 3, 3, home.path());
    setTable(ws, 2, 1);
    ws.gRestriction[3][2][4] = 1;
    ws.gRestrictionAgent = 3;
    RestrictionBoxes boxes{};
    boxes[1][1] = boxes[2][2] = true;
    saveRestrictions(ws, s.ctx, boxes);
    EXPECT_TRUE(logged(ws, QStringLiteral("Saving shift restrictions for  ")));
    const Workspace reread = readAgain();
    EXPECT_EQ(restrictionLines(reread),
              QStringList({QStringLiteral("Ann3 Agent003"),
                           QStringLiteral("    Monday, ") + ws.gShiftText[1][2],
                           QStringLiteral("    Tuesday, ") + ws.gShiftText[2][4]}));
}

// The calendar's own leap years hold a 29th of February, which is stored and read back.
TEST_F(DayPicker, TheTwentyNinthOfAnOwnLeapFebruaryIsKept) {
    openMonth(ws, 2100, 2, home.path());
    ws.gEditDay = 29;
    ws.gHolidayName[29] = proposedDayName(ws);
    PickedDays picks{};
    picks[29] = true;
    savePickedDays(ws, s.ctx, picks);
    const Workspace reread = readAgain();
    EXPECT_EQ(holidayLines(reread), texts({"President's Day, February 29"}));
}
