#include "constraints/forms/frmBoth.h"
#include "constraints/forms/frmViewDay.h"
#include "mainwindow.h"
#include "offices.h"
#include "printing/forms/frmPSetup.h"
#include "recordingprinters.h"

#include <gtest/gtest.h>

namespace {

// Three agents dealt over a month of one shift a day, a schedule to print, and a printer that
// records.
struct PrintingOffice : MainWindow {
    PrintingOffice() {
        setAgents(ws, {{"Brennan", "Patrick"}, {"Chen", "Wei"}, {"Delgado", "Sofia"}});
        setTable(ws, 1, 1);
        dealInTurn(ws);
        ws.gScheduleGenerated = 1;
        ws.gCalendarCopies = ws.gGridCopies = ws.gTearsheetFontsize = QStringLiteral("1");
        ws.gPrinterFonts = {QStringLiteral("Arial"), QStringLiteral("Times New Roman")};
        s.ctx.printers = &printers;
        ws.chkPrint = {1, 1, 0, 1, 0, 0};
        open();
    }
    RecordingPrinters printers;
};

}  // namespace

// The button prints what the boxes say; a File menu item prints its report alone and leaves
// the boxes as they were.
TEST(PrintForms, PrintButtonAndMenuItem) {
    PrintingOffice w;
    QTest::mouseClick(w.main->cmdPrint, Qt::LeftButton);
    EXPECT_EQ(w.printers.titles, texts({"January 2027 Full calendar", "January 2027 Office grid"}));
    EXPECT_FALSE(w.busy());
    w.main->mnuFPTearsheet->trigger();
    EXPECT_EQ(w.printers.titles.last(), QStringLiteral("January 2027 Tearsheet"));
    EXPECT_EQ(w.printers.device.documents, 3);
    EXPECT_EQ(w.main->chkPrint[0]->checkState(), Qt::Checked);
    EXPECT_EQ(w.main->chkPrint[2]->checkState(), Qt::Unchecked);
    EXPECT_EQ(w.main->chkPrint[3]->checkState(), Qt::Checked);
}

// The dialog takes a font it does not offer away at once; OK keeps what was typed and the
// size chosen from the list, not a size the list lacks; the printer chosen serves the run.
TEST(PrintForms, TheSetupDialog) {
    PrintingOffice w;
    w.ws.gGridFont = QStringLiteral("Wingdings");
    w.main->mnuEFonts->trigger();
    auto* setup = w.window->findChild<frmPSetup*>();
    ASSERT_TRUE(setup != nullptr && setup->isVisible());
    EXPECT_EQ(w.ws.gGridFont, QStringLiteral("Arial"));
    EXPECT_EQ(setup->cmbPrinters->currentText(), QStringLiteral("Test printer"));
    setup->cmbPrinters->setFocus();
    QTest::keyClick(setup->cmbPrinters, Qt::Key_Down);
    EXPECT_TRUE(w.printers.calls.contains(QStringLiteral("setPrinter 1")));
    setup->txtCalendarTitle->setFocus();
    QTest::keyClicks(setup->txtCalendarTitle, QStringLiteral("Wall chart"));
    setup->cmbTearsheetFontsize->setFocus();
    setup->cmbTearsheetFontsize->lineEdit()->selectAll();
    QTest::keyClicks(setup->cmbTearsheetFontsize, QStringLiteral("30"));
    QTest::mouseClick(setup->cmdOK, Qt::LeftButton);
    EXPECT_FALSE(w.busy());
    EXPECT_EQ(w.ws.gCalendarTitle, QStringLiteral("Wall chart"));
    EXPECT_EQ(w.ws.gTearsheetFontsize, QStringLiteral("12"));
    EXPECT_TRUE(fileText(w.ws.gConfigFile).contains(QStringLiteral("Calendar Title=Wall chart")));
}

// The weekly view prints its table; the view of all constraints prints its lists, and with
// every list empty stays dead until it is closed and opened again.
TEST(PrintForms, TheEditorsPrintTheirReports) {
    PrintingOffice w;
    w.main->mnuEShifts->trigger();
    auto* shifts = w.window->findChild<frmViewDay*>();
    QTest::mouseClick(shifts->cmdPrint, Qt::LeftButton);
    EXPECT_EQ(w.printers.device.documents, 1);
    EXPECT_EQ(w.printers.titles, texts({"January 2027 Daily shifts"}));
    EXPECT_TRUE(shifts->cmdCancel->isEnabled());
    QTest::mouseClick(shifts->cmdOK, Qt::LeftButton);

    w.ws.gHasHolidays = 1;
    w.main->modLeaveBusyState();
    w.main->mnuEConstraints->trigger();
    auto* all = w.window->findChild<frmBoth*>();
    QTest::mouseClick(all->cmdPrint, Qt::LeftButton);
    EXPECT_EQ(w.printers.device.documents, 1);
    EXPECT_FALSE(all->cmdOK->isEnabled());
    all->close();
    EXPECT_TRUE(w.main->isVisible());
    w.ws.gHoliday[2] = 1;
    w.main->mnuEConstraints->trigger();
    EXPECT_TRUE(all->cmdOK->isEnabled());
    QTest::mouseClick(all->cmdPrint, Qt::LeftButton);
    EXPECT_EQ(w.printers.device.documents, 2);
    EXPECT_EQ(w.printers.titles.last(), QStringLiteral("January 2027 Constraints"));
    EXPECT_TRUE(all->cmdOK->isEnabled());
}
