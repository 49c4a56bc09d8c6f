#include "cli/printverb.h"

#include "cli/session.h"
#include "constraints/allconstraints.h"
#include "core/services/printers.h"
#include "printing/pdftarget.h"
#include "printing/printcommand.h"
#include "printing/printview.h"
#include "printing/qtprinters.h"
#include "printing/tracingsurface.h"
#include "shell/filecommands.h"

#include <QFile>

#include <memory>

namespace {

// The reports by the names the tool takes; the first three are the print boxes 1 to 3.
const QStringList kReports = {QStringLiteral("calendar"), QStringLiteral("grid"),
                              QStringLiteral("tearsheet"), QStringLiteral("shifts"),
                              QStringLiteral("constraints")};

struct PrintOptions {
    QString in;
    int report = -1;
    QString pdf;
    QString trace;
};

std::optional<PrintOptions> printOptions(const QStringList& args) {
    PrintOptions options;
    for (qsizetype i = 1; i < args.size(); ++i) {
        const QString& arg = args[i];
        const bool hasValue = i + 1 < args.size();
        if (arg == QStringLiteral("--report") && hasValue) {
            options.report = static_cast<int>(kReports.indexOf(args[++i]));
        } else if (arg == QStringLiteral("--pdf") && hasValue) {
            options.pdf = args[++i];
        } else if (arg == QStringLiteral("--trace") && hasValue) {
            options.trace = args[++i];
        } else if (arg.startsWith(QStringLiteral("--")) || !options.in.isEmpty()) {
            return std::nullopt;
        } else {
            options.in = arg;
        }
    }
    if (options.in.isEmpty() || options.report < 0 || options.pdf.isEmpty()) {
        return std::nullopt;
    }
    return options;
}

// The tool's one printer writes PDF files, and tells each call to the trace if there is one.
class ToolPrinter final : public Printers {
public:
    ToolPrinter(PdfTarget& target, QTextStream* trace)
        : target_(target), surface_(target, printerFonts()) {
        if (trace != nullptr) {
            tracing_ = std::make_unique<TracingSurface>(
                surface_, [trace](const QString& line) { *trace << line << '\n'; });
        }
    }

    QStringList deviceNames() const override { return {target_.deviceName()}; }
    Surface& printer() override {
        return tracing_ ? static_cast<Surface&>(*tracing_) : static_cast<Surface&>(surface_);
    }
    void setPrinter(int) override {}
    void setDocumentTitle(const QString& title) override { surface_.setDocumentTitle(title); }

private:
    PdfTarget& target_;
    QtSurface surface_;
    std::unique_ptr<TracingSurface> tracing_;
};

void printReport(Workspace& ws, Context& ctx, int report) {
    if (report <= 2) {
        lightOneOutput(ws, report + 1);
        NoPrintView view;
        printSchedule(ws, ctx, view);
    } else if (report == 3) {
        printShiftTable(ws, ctx);
    } else {
        printConstraintLists(
            ws, ctx,
            {vacationLines(ws), restrictionLines(ws), holidayLines(ws), notedDayLines(ws)});
    }
}

}  // namespace

std::optional<int> printVerb(const QStringList& args, QTextStream& err, const Launch& launch) {
    const std::optional<PrintOptions> options = printOptions(args);
    if (!options) {
        return std::nullopt;
    }
    if (!readInput(err, options->in)) {
        return 1;
    }
    QFile traceFile(options->trace);
    QTextStream trace(&traceFile);
    if (!options->trace.isEmpty() && !traceFile.open(QIODevice::WriteOnly | QIODevice::Text)) {
        return fail(err, options->trace, QStringLiteral("cannot be written"));
    }
    Session session(err, options->in, launch);
    if (!openSchedule(session.ws, session.ctx, options->in)) {
        return 1;
    }
    PdfTarget target(printToPdfName(), numberedFiles(options->pdf));
    {
        ToolPrinter printer(target, options->trace.isEmpty() ? nullptr : &trace);
        session.ctx.printers = &printer;
        printReport(session.ws, session.ctx, options->report);
        session.ctx.printers = nullptr;
    }
    if (!target.unwritten().isEmpty()) {
        return fail(err, target.unwritten().first(), QStringLiteral("cannot be written"));
    }
    return 0;
}
