#include "core/model/leaveempty.h"
#include "fakes.h"
#include "offices.h"
#include "printing/constraintsreport.h"
#include "printing/dailyshifts.h"
#include "printing/fullcalendar.h"
#include "printing/officegrid.h"
#include "printing/pdftarget.h"
#include "printing/printcommand.h"
#include "printing/printersetup.h"
#include "printing/printview.h"
#include "printing/tearsheet.h"
#include "recordingprinters.h"
#include "tables.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class RecordingView final : public PrintView {
public:
    QStringList asked;
    void beginPrinting(const QString& status) override {
        asked.append(QStringLiteral("busy: ") + status);
    }
    void showPrintStatus(const QString& status) override {
        asked.append(QStringLiteral("status: ") + status);
    }
    void endPrinting() override { asked.append(QStringLiteral("normal")); }
};

// An office of agents with one shift of one agent a day, dealt in turn, in January 2027,
// which starts on a Friday and takes six rows, and its printers.
struct Office {
    explicit Office(int agents = 4, int month = 1) {
        makeOffice(ws, 2027, month, agents, home.path());
        dealInTurn(ws);
        s.ctx.printers = &printers;
        ws.gCalendarFont = ws.gGridFont = ws.gTearsheetFont = QStringLiteral("Times New Roman");
        ws.gCalendarCopies = ws.gGridCopies = QStringLiteral("1");
        ws.gTearsheetFontsize = QStringLiteral("8");
    }
    void print(std::array<int, 3> boxes) {
        std::copy(boxes.begin(), boxes.end(), ws.chkPrint.begin());
        printSchedule(ws, s.ctx, view);
    }
    int documents() const { return printers.device.documents; }

    QTemporaryDir home;
    TestServices s;
    Workspace ws;
    RecordingPrinters printers;
    RecordingView view;
};

}  // namespace

// The window closed during the command's first to sixth yield: no report and no copy begins
// after it, the "Leave empty" cell is back when the command returns, for the close to save,
// and the close is then taken. Events run before each report and each copy. Run to its end,
// the command prints "Leave empty" as blanks, also a holiday's blanks, which come back as the
// wish, and leaves the printer upright.
TEST(PrintCommand, StopsAtTheYieldDuringWhichTheWindowClosed) {
    const char* const lastLines[] = {"schedule for January", "full calendar", "full calendar",
                                     "full calendar",        "office grid",   "office grid"};
    const int documents[] = {0, 0, 1, 2, 2, 3, 4};  // two copies of the calendar, a tearsheet
    for (int closeAt = 1; closeAt <= 7; ++closeAt) {
        SCOPED_TRACE(closeAt);
        Office o;
        o.ws.gCalendarCopies = QStringLiteral("2");
        o.ws.schedule(4, 1, 0) = leaveEmptyText();
        o.ws.gHoliday[1] = 1;
        o.ws.schedule(1, 1, 0) = blankedCellText();
        int yields = 0;
        o.s.ctx.events.run = [&] {
            if (++yields == closeAt) {
                o.s.ctx.events.putOffClose();
            }
        };
        EXPECT_EQ(o.s.ctx.events.runCommand([&] { o.print({1, 1, 1}); }), closeAt < 7);
        EXPECT_EQ(yields, std::min(closeAt, 6));
        EXPECT_EQ(o.documents(), documents[closeAt - 1]);
        EXPECT_EQ(o.ws.schedule(4, 1, 0), leaveEmptyText());
        EXPECT_EQ(o.view.asked.last(), QStringLiteral("normal"));
        const QString lastLine = fileText(o.ws.gLogFile).section(QStringLiteral("\r\n"), -2, -2);
        EXPECT_TRUE(
            lastLine.endsWith(QLatin1String(closeAt < 7 ? lastLines[closeAt - 1] : "tearsheet")));
        if (closeAt == 7) {
            EXPECT_TRUE(o.printers.starting(QStringLiteral("Print \"Leave empty\"")).isEmpty());
            EXPECT_NE(o.printers.printedAt(blankedCellText()), QPointF(-1, -1));
            EXPECT_EQ(o.ws.schedule(1, 1, 0), leaveEmptyText());
            EXPECT_EQ(o.view.asked, texts({"busy: Printing the schedule . . .",
                                           "status: Printing the full calendar . . .",
                                           "status: Printing the office grid . . .",
                                           "status: Printing the tearsheet . . .", "normal"}));
            EXPECT_TRUE(logged(o.ws, QStringLiteral("Printing the schedule for January")));
            EXPECT_EQ(o.printers.calls.last(), QStringLiteral("Orientation = 1"));
        }
    }
}

// The boxes choose the reports, in a fixed order; copies are repaired, counted and capped.
TEST(PrintCommand, BoxesAndCopies) {
    for (const QStringList& row : tableRows("printing/golden/copies.tsv")) {
        SCOPED_TRACE(row.join(u' ').toStdString());
        Office o;
        const std::array<int, 3> boxes = {row[0][0] == u'1', row[0][1] == u'1', row[0][2] == u'1'};
        QString& copies = boxes[0] == 1 ? o.ws.gCalendarCopies : o.ws.gGridCopies;
        copies = row[1];
        o.print(boxes);
        const int documents = row[2].toInt();
        EXPECT_EQ(o.documents(), documents);
        EXPECT_EQ(o.printers.titles, row.value(4).split(u'|', Qt::SkipEmptyParts));
        EXPECT_EQ(copies, row[3]);
        EXPECT_EQ(o.s.dialogs.texts(), o.s.dialogs.wrapped(row.mid(5)));
        EXPECT_TRUE(QFile::exists(o.ws.gConfigFile));
        EXPECT_EQ(o.view.asked.isEmpty(), documents == 0);
    }
}

// Where the names of a shift stand: the busiest weekday decides size, lines and spacing.
TEST(FullCalendar, TheBusiestWeekdayChoosesSizeAndSpacing) {
    for (const QStringList& row : tableRows("printing/golden/fullcalendar.tsv")) {
        SCOPED_TRACE(row.join(u' ').toStdString());
        const int shifts = row[0].toInt();
        const int agents = row[1].toInt();
        Office o(4, row[2].toInt());
        setTable(o.ws, shifts, agents);
        for (int shift = 1; shift <= shifts; ++shift) {
            for (int slot = 0; slot < agents; ++slot) {
                o.ws.schedule(1, shift, slot) = QStringLiteral("s%1n%2").arg(shift).arg(slot);
            }
        }
        o.ws.gCalendarHideTimeText = row[3];
        const int mode = row[4].toInt();
        EXPECT_EQ(calendarFontMode(o.ws), mode);
        printFullCalendarCopy(o.ws, o.s.ctx, o.printers.printer());
        EXPECT_TRUE(o.printers.calls.contains(row[5]));
        const auto y = [&o, &row](int field) { return o.printers.printedAt(row[field]).y(); };
        EXPECT_NEAR(y(7) - y(6), row[10].toDouble(), 1e-3);
        EXPECT_NEAR(y(9) - y(8), row[11].toDouble(), 1e-3);
        EXPECT_EQ(
            logged(o.ws, QStringLiteral("Using fontsize 6 for full calendar due to configuration")),
            mode == 2);
    }
}

// A holiday shows its name alone, also on a noted day; a noted day's text ends 0.015 further
// left than a holiday's.
TEST(FullCalendar, HolidaysAndNotedDaysInTheCorner) {
    Office o;
    o.ws.gHoliday[4] = o.ws.gHoliday[6] = o.ws.gNoted[5] = o.ws.gNoted[6] = 1;
    o.ws.gHolidayName[4] = QStringLiteral("Hol4");
    o.ws.gHolidayName[6] = QStringLiteral("Hol6");
    o.ws.gNotedText[5] = QStringLiteral("Note5");
    o.ws.gNotedText[6] = QStringLiteral("Note6");
    printFullCalendarCopy(o.ws, o.s.ctx, o.printers.printer());
    const double width = 4 * 9 * 0.5 / 72;  // four characters at 9 points
    const double cellWidth = 10.11 / 7;
    EXPECT_NEAR(o.printers.printedAt(QStringLiteral("Hol4")).x() + width,
                0.25 + 2 * cellWidth - 0.09, 1e-3);
    EXPECT_NEAR(o.printers.printedAt(QStringLiteral("Note5")).x() + 5 * 9 * 0.5 / 72,
                0.25 + 3 * cellWidth - 0.105, 1e-3);
    EXPECT_NE(o.printers.printedAt(QStringLiteral("Hol6")), QPointF(-1, -1));
    EXPECT_EQ(o.printers.printedAt(QStringLiteral("Note6")), QPointF(-1, -1));
}

// The names' size follows the agents; a slot that names nobody ends its day's shading, and a
// holiday stays white.
TEST(OfficeGrid, SizesAndShading) {
    for (const QStringList& row : tableRows("printing/golden/officegrid.tsv")) {
        SCOPED_TRACE(row[0].toStdString());
        const int agents = row[0].toInt();
        Office o(std::max(agents, 1));
        setTable(o.ws, 1, 2);
        dealInTurn(o.ws);
        o.ws.gAgentCount = agents;
        o.ws.gHoliday[1] = 1;
        o.ws.schedule(2, 1, 0).clear();
        printOfficeGridCopy(o.ws, o.printers.printer());
        const QStringList calls = o.printers.calls;
        const qsizetype shading = calls.indexOf(QStringLiteral("FillColor = 8421504"));
        EXPECT_EQ(calls.mid(shading).filter(QStringLiteral(", , B")).size(), row[2].toInt());
        EXPECT_TRUE(row[1].isEmpty() || calls.contains(row[1]));
        EXPECT_EQ(o.documents(), 1);
    }
}

// Slips fill a page down its columns; one agent more than a page holds makes a second
// document, and slips too large for a page take one each.
TEST(Tearsheet, PagesOfSlips) {
    Office full(200);
    printTearsheet(full.ws, full.printers.printer());
    const QStringList calls = full.printers.calls;
    const auto perPage = static_cast<int>(calls.mid(0, calls.indexOf(QStringLiteral("EndDoc")))
                                              .count(QStringLiteral("FontBold = True")));
    ASSERT_GT(perPage, 1);
    const std::tuple<int, const char*, int, const char*> cases[] = {
        {perPage, "8", 1, "8"}, {perPage + 1, "", 2, "8"}, {3, "300", 3, "300"}};
    for (const auto& [agents, size, documents, sizeAfter] : cases) {
        SCOPED_TRACE(agents);
        Office o(agents);
        o.ws.gTearsheetFontsize = QString::fromUtf8(size);
        printTearsheet(o.ws, o.printers.printer());
        EXPECT_EQ(o.documents(), documents);
        EXPECT_EQ(o.ws.gTearsheetFontsize, QString::fromUtf8(sizeAfter));
    }
}

// Only Wednesday measures the box's width, here by its heading alone; a long Thursday sets
// its bottom.
TEST(DailyShifts, TheBoxFollowsWednesdayAndTheLowestColumn) {
    Office o;
    setShifts(o.ws, {{0}, {0}, {0}, {}, {0, 0, 0, 0, 0, 0}, {0}, {0}});
    o.ws.gShiftText[1][1] = QStringLiteral("a far longer shift than any other");
    printDailyShifts(o.ws, o.s.ctx, o.printers.printer());
    // "Wednesday Shifts" is 1.4667 wide in bold 12 points; a line is 0.1917 high.
    EXPECT_TRUE(o.printers.calls.contains(QStringLiteral("Line (0.8, 1)-(7.3667, 3.325), , B")));
    EXPECT_EQ(o.printers.calls.last(), QStringLiteral("Orientation = 1"));
}

TEST(ConstraintsReport, ListsTheLinesOrEndsEarly) {
    Office o;
    EXPECT_FALSE(printConstraints(o.ws, o.s.ctx, o.printers.printer(), {}));
    EXPECT_FALSE(o.printers.calls.contains(QStringLiteral("EndDoc")));
    EXPECT_EQ(o.documents(), 0);

    Office one;
    EXPECT_TRUE(printConstraints(one.ws, one.s.ctx, one.printers.printer(),
                                 {{{}, {}, texts({"New Year's Day, January 1"}), {}}}));
    QStringList printed;
    for (const QString& call : one.printers.starting(QStringLiteral("Print"))) {
        printed.append(call.section(QStringLiteral("  ' at"), 0, 0));
    }
    EXPECT_EQ(printed, texts({"Print \"Holidays\"", "Print \"New Year's Day, January 1\"", "Print",
                              "Print", "Print \"January 2027\""}));
    EXPECT_EQ(one.documents(), 1);

    // 103 lines fit ten inches at 6 points.
    Office many;
    const QStringList hundred(100, QStringLiteral("line"));
    printConstraints(many.ws, many.s.ctx, many.printers.printer(), {{hundred, {}, {}, {}}});
    EXPECT_TRUE(many.printers.calls.contains(QStringLiteral("FontSize = 6")));
    EXPECT_FALSE(many.printers.calls.contains(QStringLiteral("FontSize = 5")));
}

TEST(PrinterSetup, FontsAndWhatOkKeeps) {
    Office o;
    RecordingPrinters printers(texts({"Arial", " ", "", "Courier"}));
    o.s.ctx.printers = &printers;
    modFillFontTable(o.ws, o.s.ctx);
    const QStringList table(o.ws.gPrinterFonts.begin(), o.ws.gPrinterFonts.end());
    EXPECT_EQ(table, texts({"Arial", "Courier", "", ""}));
    QString font = QStringLiteral("Wingdings");
    EXPECT_FALSE(keepOfferedFont(o.ws, font));
    EXPECT_EQ(font, QStringLiteral("Arial"));

    o.ws.gTearsheetFontsize = QStringLiteral("3");
    EXPECT_EQ(printerSetupFields(o.ws).tearsheetFontsize, QStringLiteral("12"));
    savePrinterSetup(o.ws, o.s.ctx, PrinterSetupFields{});
    for (const QString* setting : {&o.ws.gCalendarFont, &o.ws.gGridFont, &o.ws.gTearsheetFont}) {
        EXPECT_EQ(*setting, QStringLiteral("Times New Roman"));
    }
    EXPECT_EQ(o.ws.gCalendarCopies + o.ws.gGridCopies + o.ws.gTearsheetFontsize,
              QStringLiteral("1112"));
    EXPECT_EQ(o.ws.gCalendarTitle + o.ws.gCalendarHideTimeText, QStringLiteral("0"));
    EXPECT_TRUE(logged(o.ws, QStringLiteral("Closing font and printer setup")));
}

// Hostile settings and big offices print every page and end.
TEST(PrintCommand, EndsOnBadInputAndBigOffices) {
    const std::function<void(Workspace&)> cases[] = {
        [](Workspace& ws) { ws.gCalendarTitle = ws.gGridNotes = QString(5000, QLatin1Char('W')); },
        [](Workspace& ws) { ws.gCalendarFont = ws.gTearsheetFont = QStringLiteral("No such"); },
        [](Workspace& ws) { ws.gAgentLast[1] = QString(200, QLatin1Char('L')); },
        [](Workspace& ws) {
            setTable(ws, 6, 4);
            dealInTurn(ws);
        },
    };
    for (const auto& change : cases) {
        SCOPED_TRACE(&change - cases);
        Office o(1000);
        change(o.ws);
        o.print({1, 1, 1});
        EXPECT_GT(o.documents(), 2);
        EXPECT_FALSE(o.printers.calls.contains(QStringLiteral("FontSize -> 0")));
    }
}

TEST(PrintToPdf, NamesNeverWriteOverAFile) {
    QTemporaryDir dir;
    const PdfTarget::Naming inFolder = namesInFolder(dir.filePath(QStringLiteral("new")));
    const QString first = inFolder(QStringLiteral("May 2027 Tearsheet"));
    EXPECT_EQ(first, dir.filePath(QStringLiteral("new/May 2027 Tearsheet.pdf")));
    QFile(first).open(QIODevice::WriteOnly);
    EXPECT_EQ(inFolder(QStringLiteral("May 2027 Tearsheet")),
              dir.filePath(QStringLiteral("new/May 2027 Tearsheet (2).pdf")));
    PdfTarget::Naming numbered = numberedFiles(QStringLiteral("out/may.pdf"));
    const QStringList files = {numbered({}), numbered({}), numbered({})};
    EXPECT_EQ(files, texts({"out/may.pdf", "out/may-2.pdf", "out/may-3.pdf"}));
}
