#include "printing/printersetup.h"

#include "core/model/numbers.h"
#include "core/model/workspace.h"
#include "core/services/context.h"
#include "core/services/log.h"
#include "core/services/printers.h"
#include "core/services/surface.h"
#include "persistence/workspacefile.h"

#include <algorithm>

namespace {

bool isFontName(const QString& name) {
    return !name.isEmpty() && name != QStringLiteral(" ");
}

QString orDefault(const QString& text, const QString& fallback) {
    return text.isEmpty() ? fallback : text;
}

QString flag(bool on) {
    return on ? QStringLiteral("1") : QStringLiteral("0");
}

}  // namespace

void modFillFontTable(Workspace& ws, const Context& ctx) {
    ws.gPrinterFonts.clear();
    if (ctx.printers == nullptr) {
        return;
    }
    const Surface& printer = ctx.printers->printer();
    const int count = printer.FontCount();
    ws.gPrinterFonts.assign(static_cast<std::size_t>(std::max(count, 0)), QString());
    std::size_t next = 0;
    for (int i = 0; i < count; ++i) {
        const QString name = printer.Fonts(i);
        if (isFontName(name)) {
            ws.gPrinterFonts[next++] = name;
        }
    }
}

QStringList offeredFonts(const Workspace& ws) {
    QStringList fonts;
    for (const QString& name : ws.gPrinterFonts) {
        if (isFontName(name)) {
            fonts.append(name);
        }
    }
    return fonts;
}

bool keepOfferedFont(const Workspace& ws, QString& setting) {
    if (offeredFonts(ws).contains(setting) || ws.gPrinterFonts.empty()) {
        return true;
    }
    setting = ws.gPrinterFonts.front();
    return false;
}

QStringList tearsheetSizes() {
    QStringList sizes;
    for (int size = 4; size <= 24; ++size) {
        sizes.append(QString::number(size));
    }
    return sizes;
}

void choosePrinter(Context& ctx, const QString& deviceName) {
    if (ctx.printers == nullptr || deviceName.isEmpty()) {
        return;
    }
    const QStringList names = ctx.printers->deviceNames();
    for (int i = 0; i < names.size(); ++i) {
        if (names[i] == deviceName) {
            ctx.printers->setPrinter(i);
        }
    }
}

int currentPrinterIndex(Context& ctx) {
    if (ctx.printers == nullptr) {
        return -1;
    }
    const QString current = ctx.printers->printer().DeviceName();
    return static_cast<int>(ctx.printers->deviceNames().lastIndexOf(current));
}

PrinterSetupFields printerSetupFields(const Workspace& ws) {
    PrinterSetupFields fields;
    fields.tearsheetFontsize =
        leadingNumber(ws.gTearsheetFontsize) > 3 ? ws.gTearsheetFontsize : QStringLiteral("12");
    fields.calendarUseFirst = leadingNumber(ws.gCalendarUseFirstName) == 1;
    fields.calendarHideTime = leadingNumber(ws.gCalendarHideTimeText) == 1;
    fields.calendarTitle = ws.gCalendarTitle;
    fields.calendarNotes = ws.gCalendarNotes;
    fields.calendarFont = ws.gCalendarFont;
    fields.gridTitle = ws.gGridTitle;
    fields.gridNotes = ws.gGridNotes;
    fields.gridFont = ws.gGridFont;
    fields.calendarCopies = ws.gCalendarCopies;
    fields.gridCopies = ws.gGridCopies;
    fields.tearsheetFont = ws.gTearsheetFont;
    fields.emailSubject = ws.gEmailSubject;
    fields.emailBody = ws.gEmailBody;
    fields.outlookSubject = ws.gOutlookSubject;
    fields.outlookBody = ws.gOutlookBody;
    return fields;
}

void savePrinterSetup(Workspace& ws, Context& ctx, const PrinterSetupFields& fields) {
    modStatus(ws, ctx, QStringLiteral("Closing font and printer setup"));
    const QString font = QStringLiteral("Times New Roman");
    ws.gCalendarFont = orDefault(fields.calendarFont, font);
    ws.gGridFont = orDefault(fields.gridFont, font);
    ws.gTearsheetFont = orDefault(fields.tearsheetFont, font);
    ws.gTearsheetFontsize = leadingNumber(fields.tearsheetFontsize) == 0 ? QStringLiteral("12")
                                                                         : fields.tearsheetFontsize;
    ws.gCalendarTitle = fields.calendarTitle;
    ws.gCalendarNotes = fields.calendarNotes;
    ws.gCalendarUseFirstName = flag(fields.calendarUseFirst);
    ws.gCalendarHideTimeText = flag(fields.calendarHideTime);
    ws.gGridTitle = fields.gridTitle;
    ws.gGridNotes = fields.gridNotes;
    ws.gEmailSubject = fields.emailSubject;
    ws.gEmailBody = fields.emailBody;
    ws.gOutlookSubject = fields.outlookSubject;
    ws.gOutlookBody = fields.outlookBody;
    ws.gCalendarCopies = orDefault(fields.calendarCopies, QStringLiteral("1"));
    ws.gGridCopies = orDefault(fields.gridCopies, QStringLiteral("1"));
    modSaveWorkspace(ws, ctx, QString());
}
