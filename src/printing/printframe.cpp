#include "printing/printframe.h"

#include "core/model/numbers.h"
#include "core/services/context.h"
#include "core/services/log.h"
#include "core/services/msgbox.h"
#include "core/services/surface.h"
#include "printing/printview.h"

#include <cmath>

namespace {

// The width of the title box and of the page's printed part.
constexpr double kBoxWidth = 10.11;
constexpr double kBoxLeft = 0.25;

void printCentred(Surface& printer, const QString& text, double y) {
    printer.setCurrentX((kBoxWidth - printer.TextWidth(text)) / 2.0 + kBoxLeft);
    printer.setCurrentY(y);
    printer.Print(text);
}

}  // namespace

bool stepFontSize(Surface& printer, double step) {
    const double before = printer.FontSize();
    printer.setFontSize(before + step);
    return printer.FontSize() != before;
}

void printFittedTitle(Surface& printer, const QString& title) {
    printer.setFontSize(24);
    while (printer.TextWidth(title) >= 9.9 && stepFontSize(printer, -1)) {
    }
    printCentred(printer, title, 0.445 - printer.TextHeight(title) / 2.0);
}

void printFittedNotes(Surface& printer, const QString& notes, double y) {
    printer.setFontSize(10);
    while (printer.TextWidth(notes) >= kBoxWidth && stepFontSize(printer, -1)) {
    }
    printCentred(printer, notes, y);
}

void printCopies(Workspace& ws, Context& ctx, PrintView& view, const QString& status,
                 const QString& report, QString& copies, const std::function<void()>& printCopy) {
    modStatus(ws, ctx, status);
    view.showPrintStatus(status + QStringLiteral(" . . ."));
    if (leadingNumber(copies) == 0) {
        copies = QStringLiteral("1");
    }
    // A count such as 2.5 prints twice.
    const double asked = std::floor(leadingNumber(copies));
    int count = asked < 1 ? 0 : kMostCopies;
    if (asked > kMostCopies) {
        msgBox(ctx.dialogs,
               QStringLiteral("Desko prints at most %1 copies of a report, so the %2 is printed "
                              "%1 times, not %3.")
                   .arg(kMostCopies)
                   .arg(report, copies.trimmed()),
               MsgIcon::Exclamation, MsgButtons::OK);
    } else if (asked >= 1) {
        count = static_cast<int>(asked);
    }
    for (int copy = 1; copy <= count && ctx.events.doEvents(); ++copy) {
        printCopy();
    }
}
