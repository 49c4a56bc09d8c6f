#include "core/model/daycaption.h"
#include "fakes.h"
#include "offices.h"

#include <gtest/gtest.h>

// January 2027 begins on a Friday. Sundays have one shift of one agent, Mondays one of
// three, Tuesdays two of one, Wednesdays one of four and one of five, Thursdays six of one.
TEST(DayCaption, ShiftsTwoToALineAndNotesOnTheSixth) {
    Workspace ws;
    openMonth(ws, 2027, 1);
    setAgents(ws, {{"Brennan", "Pat"}, {"Chen", "Wei"}, {"Delgado", "Sofia"}});
    setShifts(ws, {{0}, {2}, {0, 0}, {3, 4}, {0, 0, 0, 0, 0, 0}});
    dealInTurn(ws);
    ws.gHoliday[1] = 1;
    ws.gHolidayName[1] = QStringLiteral("New Year's Day");
    for (const int day : {2, 3, 6, 7}) {
        ws.gNoted[day] = 1;
        ws.gNotedText[day] = QStringLiteral("Note");
    }
    ws.schedule(3, 1, 0) = QStringLiteral("Leave empty");
    const struct {
        int day;
        const char* caption;
    } cases[] = {
        {1, "\n\n\n\n\nNew Year's Day"},
        {2, "\n\n\n\n\nNote"},
        {3, "Leave empty\n\n\n\n\nNote"},
        {4, "Chen/Delgado\nBrennan\n"},
        {6, "Brennan/Chen\nDelgado/Brennan\nChen/Delgado\nBrennan/Chen\nDelgado\nNote"},
        {7, "Brennan\nChen\nDelgado\nBrennan\nChen\nDelgado\nNote"},
        {8, ""},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(dayCaption(ws, row.day), QString::fromUtf8(row.caption)) << row.day;
    }
}
