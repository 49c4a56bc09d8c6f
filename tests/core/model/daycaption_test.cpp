#include "core/model/daycaption.h"
#include "fakes.h"
#include "offices.h"
#include "tables.h"

#include <gtest/gtest.h>

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
    for (const QStringList& row : tableRows("core/model/golden/daycaptions.tsv")) {
        EXPECT_EQ(dayCaption(ws, row[0].toInt()), row.value(1)) << row[0].toStdString();
    }
}
