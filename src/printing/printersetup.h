#pragma once

#include <QString>
#include <QStringList>

struct Context;
struct Workspace;

// The rules of the fonts and printer setup: the printer's font table, the fonts offered, the
// printer for the run, and what OK takes into the workspace.

// Fills gPrinterFonts from the current printer's fonts at start-up, leaving out names that
// are empty or one blank; empty without a printer.
void modFillFontTable(Workspace& ws, const Context& ctx);

// The fonts the dialog offers, in the table's order.
QStringList offeredFonts(const Workspace& ws);

// A font setting that is none of the offered fonts becomes the table's first font, and stays
// so whatever the dialog's end. False when it changed.
bool keepOfferedFont(const Workspace& ws, QString& setting);

// The sizes offered for the tearsheet, 4 to 24 points, and the one chosen at first, "12".
QStringList tearsheetSizes();
inline constexpr int kFirstTearsheetSize = 8;

// Every printer with that name becomes the current one, in turn, for the rest of the run.
void choosePrinter(Context& ctx, const QString& deviceName);
// The position of the current printer among the printers, the last with its name; -1 for
// none.
int currentPrinterIndex(Context& ctx);

// What the dialog shows and gives back. The tearsheet's size is the entry chosen from its
// list, empty when none is.
struct PrinterSetupFields {
    QString calendarTitle;
    QString calendarNotes;
    QString calendarFont;
    QString calendarCopies;
    bool calendarUseFirst = false;
    bool calendarHideTime = false;
    QString gridTitle;
    QString gridNotes;
    QString gridFont;
    QString gridCopies;
    QString tearsheetFont;
    QString tearsheetFontsize;
    QString emailSubject;
    QString emailBody;
    QString outlookSubject;
    QString outlookBody;
};

// The fields as the workspace gives them; a tearsheet size of 3 or less shows as "12".
PrinterSetupFields printerSetupFields(const Workspace& ws);

// OK: the fields go into the workspace, repaired where empty (fonts "Times New Roman",
// copies "1", a tearsheet size that is no number "12"), and the working file is written.
void savePrinterSetup(Workspace& ws, Context& ctx, const PrinterSetupFields& fields);
