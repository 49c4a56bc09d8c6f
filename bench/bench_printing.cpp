// Printing a month to PDF: the full calendar of a 100-agent office; all five reports of that
// month; the tearsheet of a 1,000-agent office. The office works three shifts of two agents
// on weekdays and one of one at weekends, every position filled in turn, with a holiday,
// noted days and vacations for the constraints report. Each document is written as a PDF
// file, as the "Print to PDF" printer writes it.

#include "constraints/allconstraints.h"
#include "core/services/printers.h"
#include "fakes.h"
#include "offices.h"
#include "printing/constraintsreport.h"
#include "printing/dailyshifts.h"
#include "printing/fullcalendar.h"
#include "printing/pdftarget.h"
#include "printing/printcommand.h"
#include "printing/printview.h"
#include "printing/qtprinters.h"

#include <QGuiApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

// A month of the office with the printer writing one PDF file again and again.
struct PrintedOffice {
    explicit PrintedOffice(int agents) {
        makeOffice(ws, 2027, 1, agents);
        setTable(ws, 3, 2, 1);
        for (int w = 0; w < kWeekdays; ++w) {
            ws.gShiftText[w] = {QString(), QStringLiteral("8am-12pm"), QStringLiteral("12pm-4pm"),
                                QStringLiteral("4pm-8pm")};
        }
        dealInTurn(ws);
        ws.gHoliday[1] = 1;
        ws.gHolidayName[1] = QStringLiteral("New Year's Day");
        ws.gNoted[8] = 1;
        ws.gNotedText[8] = QStringLiteral("Staff meeting at 9am");
        for (int agent = 1; agent <= agents; agent += 7) {
            ws.gVacation[agent][agent % 28 + 1] = 1;
        }
        ws.gCalendarFont = ws.gGridFont = ws.gTearsheetFont = QStringLiteral("Times New Roman");
        ws.gCalendarTitle = ws.gGridTitle = QStringLiteral("January 2027 Desko Schedule");
        ws.gCalendarCopies = ws.gGridCopies = QStringLiteral("1");
        ws.gTearsheetFontsize = QStringLiteral("8");
        const QString file = dir.filePath(QStringLiteral("report.pdf"));
        std::vector<std::unique_ptr<PageTarget>> targets;
        targets.push_back(
            std::make_unique<PdfTarget>(printToPdfName(), [file](const QString&) { return file; }));
        printers = std::make_unique<QtPrinters>(std::move(targets), 0, printerFonts());
        s.ctx.printers = printers.get();
    }

    void printSchedule(std::array<int, 3> boxes) {
        std::copy(boxes.begin(), boxes.end(), ws.chkPrint.begin());
        NoPrintView view;
        ::printSchedule(ws, s.ctx, view);
    }

    QTemporaryDir dir;
    TestServices s;
    Workspace ws;
    std::unique_ptr<Printers> printers;
};

void BM_FullCalendar100Agents(benchmark::State& state) {
    PrintedOffice office(100);
    for (auto _ : state) {
        printFullCalendarCopy(office.ws, office.s.ctx, office.printers->printer());
    }
}
BENCHMARK(BM_FullCalendar100Agents)->Unit(benchmark::kMillisecond);

void BM_AllFiveReports100Agents(benchmark::State& state) {
    PrintedOffice office(100);
    Surface& printer = office.printers->printer();
    for (auto _ : state) {
        office.printSchedule({1, 1, 1});
        printDailyShifts(office.ws, office.s.ctx, printer);
        printConstraints(office.ws, office.s.ctx, printer,
                         {vacationLines(office.ws), restrictionLines(office.ws),
                          holidayLines(office.ws), notedDayLines(office.ws)});
    }
}
BENCHMARK(BM_AllFiveReports100Agents)->Unit(benchmark::kMillisecond);

void BM_Tearsheet1000Agents(benchmark::State& state) {
    PrintedOffice office(1000);
    for (auto _ : state) {
        office.printSchedule({0, 0, 1});
    }
}
BENCHMARK(BM_Tearsheet1000Agents)->Unit(benchmark::kMillisecond);

}  // namespace

// Measuring text takes the fonts of the machine, and so the graphical application; no
// window is shown, so no display is needed.
int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
