#include "printing/forms/frmPSetup.h"

#include "core/forms/formkit.h"
#include "core/model/workspace.h"
#include "core/services/context.h"
#include "core/services/log.h"
#include "core/services/printers.h"
#include "printing/printersetup.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace {

// A row of a frame: the label and its control.
template <typename Control>
Control* row(QGroupBox* frame, const QString& label, Control* control) {
    auto* form = static_cast<QFormLayout*>(frame->layout());
    auto* caption = new QLabel(label, frame);
    caption->setBuddy(control);
    form->addRow(caption, control);
    return control;
}

QGroupBox* frameOf(QWidget* parent, const char* name, const QString& caption) {
    QGroupBox* frame = makeFrame(parent, name, caption);
    auto* form = new QFormLayout(frame);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    return frame;
}

QLineEdit* textRow(QGroupBox* frame, const char* name, const QString& label) {
    QLineEdit* box = makeTextBox(frame, name, label.chopped(1));
    selectAllOnFocus(box);
    return row(frame, label, box);
}

// A list of choices in which a text may also be typed.
QComboBox* comboRow(QGroupBox* frame, const char* name, const QString& label) {
    QComboBox* combo = makeDropDown(frame, QLatin1String(name), label.chopped(1));
    combo->setEditable(true);
    combo->setInsertPolicy(QComboBox::NoInsert);
    return row(frame, label, combo);
}

QCheckBox* checkRow(QGroupBox* frame, const char* name, const QString& label) {
    QCheckBox* box = makeCheckBox(frame, QLatin1String(name), QString());
    box->setAccessibleName(label.chopped(1));
    return row(frame, label, box);
}

// The combo shows the text; an entry with that text is chosen, else the choice stays.
void showText(QComboBox* combo, const QString& text) {
    const int index = combo->findText(text, Qt::MatchFixedString | Qt::MatchCaseSensitive);
    if (index >= 0) {
        combo->setCurrentIndex(index);
    }
    combo->setEditText(text);
}

// A text box shows its text from the start.
void showText(QLineEdit* box, const QString& text) {
    box->setText(text);
    box->setCursorPosition(0);
}

// Fills a font list with the offered fonts and chooses the setting, which falls back to the
// first font when it is not among them.
void fillFonts(const Workspace& ws, QComboBox* combo, QString& setting) {
    combo->clear();
    combo->addItems(offeredFonts(ws));
    if (!keepOfferedFont(ws, setting)) {
        combo->setCurrentIndex(0);
        return;
    }
    combo->setCurrentIndex(combo->findText(setting, Qt::MatchFixedString | Qt::MatchCaseSensitive));
}

}  // namespace

frmPSetup::frmPSetup(Workspace& ws, Context& ctx, MainForm& main, FaceWindow& window)
    : Form(window), ws_(ws), ctx_(ctx), main_(main) {
    setObjectName(QStringLiteral("frmPSetup"));
    buildReportFrames();
    buildMailFrames();
    cmdOK = makeButton(this, "cmdOK", QStringLiteral("OK"));
    cmdCancel = makeButton(this, "cmdCancel", QStringLiteral("&Cancel"));

    auto* columns = new QGridLayout;
    columns->addWidget(fraCalendar, 0, 0);
    columns->addWidget(fraGrid, 1, 0);
    columns->addWidget(fraTearsheet, 0, 1);
    columns->addWidget(frmPrinter, 1, 1);
    columns->addWidget(fraEmail, 2, 0);
    columns->addWidget(fraOutlook, 2, 1);
    columns->setColumnStretch(0, 1);
    columns->setColumnStretch(1, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(columns);
    layout->addStretch();
    layout->addLayout(closingRow(this, nullptr, cmdOK, cmdCancel));

    // Only the user's own changes of these two count as changes of the workspace.
    connect(cmbCalendarFont, &QComboBox::editTextChanged, this, [this] { ws_.gDirty = 1; });
    connect(cmbTearsheetFontsize, &QComboBox::editTextChanged, this, [this] { ws_.gDirty = 1; });
    connect(cmbPrinters, &QComboBox::activated, this, [this] { cmbPrinters_Click(); });
    connect(cmdOK, &QPushButton::clicked, this, [this] { cmdOK_Click(); });
    connect(cmdCancel, &QPushButton::clicked, this, [this] { cmdCancel_Click(); });
}

void frmPSetup::buildReportFrames() {
    fraCalendar = frameOf(this, "fraCalendar", QStringLiteral("Full calendar setup"));
    txtCalendarTitle = textRow(fraCalendar, "txtCalendarTitle", QStringLiteral("Title:"));
    txtCalendarNotes = textRow(fraCalendar, "txtCalendarNotes", QStringLiteral("Remarks:"));
    cmbCalendarFont = comboRow(fraCalendar, "cmbCalendarFont", QStringLiteral("Font:"));
    txtCalendarCopies = textRow(fraCalendar, "txtCalendarCopies", QStringLiteral("Copies:"));
    chkCalendarUseFirst =
        checkRow(fraCalendar, "chkCalendarUseFirst", QStringLiteral("Use first name:"));
    chkCalendarHideTime =
        checkRow(fraCalendar, "chkCalendarHideTime", QStringLiteral("Hide time text:"));

    fraGrid = frameOf(this, "fraGrid", QStringLiteral("Office grid setup"));
    txtGridTitle = textRow(fraGrid, "txtGridTitle", QStringLiteral("Title:"));
    txtGridNotes = textRow(fraGrid, "txtGridNotes", QStringLiteral("Remarks:"));
    cmbGridFont = comboRow(fraGrid, "cmbGridFont", QStringLiteral("Font:"));
    txtGridCopies = textRow(fraGrid, "txtGridCopies", QStringLiteral("Copies:"));

    fraTearsheet = frameOf(this, "fraTearsheet", QStringLiteral("Tearsheet setup"));
    cmbTearsheetFont = comboRow(fraTearsheet, "cmbTearsheetFont", QStringLiteral("Font:"));
    cmbTearsheetFontsize =
        comboRow(fraTearsheet, "cmbTearsheetFontsize", QStringLiteral("Font size:"));

    frmPrinter = frameOf(this, "frmPrinter", QStringLiteral("Printer setup"));
    cmbPrinters = row(
        frmPrinter, QStringLiteral("Default printer:"),
        makeDropDown(frmPrinter, QStringLiteral("cmbPrinters"), QStringLiteral("Default printer")));
}

void frmPSetup::buildMailFrames() {
    fraEmail = frameOf(this, "fraEmail", QStringLiteral("E-mail setup"));
    txtEmailSubject = textRow(fraEmail, "txtEmailSubject", QStringLiteral("Subject line:"));
    txtEmailBody = textRow(fraEmail, "txtEmailBody", QStringLiteral("Body text:"));
    fraOutlook = frameOf(this, "fraOutlook", QStringLiteral("MS Outlook setup"));
    txtOutlookSubject = textRow(fraOutlook, "txtOutlookSubject", QStringLiteral("Subject line:"));
    txtOutlookBody = textRow(fraOutlook, "txtOutlookBody", QStringLiteral("Body text:"));
}

// A font setting the printer does not offer is changed here, before the user has said
// anything, and stays changed though the dialog is cancelled.
void frmPSetup::Form_Load() {
    modStatus(ws_, ctx_, QStringLiteral("Viewing fonts and printer setup"));
    setWindowTitle(main_.windowTitle());
    const QSignalBlocker calendar(cmbCalendarFont);
    const QSignalBlocker size(cmbTearsheetFontsize);
    fillFonts(ws_, cmbCalendarFont, ws_.gCalendarFont);
    fillFonts(ws_, cmbGridFont, ws_.gGridFont);
    fillFonts(ws_, cmbTearsheetFont, ws_.gTearsheetFont);
    cmbTearsheetFontsize->clear();
    cmbTearsheetFontsize->addItems(tearsheetSizes());
    cmbTearsheetFontsize->setCurrentIndex(kFirstTearsheetSize);
}

// Each activation shows the workspace afresh: what was typed and not taken is gone.
void frmPSetup::Form_Activate() {
    {
        const QSignalBlocker quiet(cmbPrinters);
        cmbPrinters->clear();
        if (ctx_.printers != nullptr) {
            cmbPrinters->addItems(ctx_.printers->deviceNames());
        }
        cmbPrinters->setCurrentIndex(currentPrinterIndex(ctx_));
    }
    const QSignalBlocker calendar(cmbCalendarFont);
    const QSignalBlocker size(cmbTearsheetFontsize);
    const PrinterSetupFields fields = printerSetupFields(ws_);
    showText(cmbTearsheetFontsize, fields.tearsheetFontsize);
    chkCalendarUseFirst->setChecked(fields.calendarUseFirst);
    chkCalendarHideTime->setChecked(fields.calendarHideTime);
    showText(txtCalendarTitle, fields.calendarTitle);
    showText(txtCalendarNotes, fields.calendarNotes);
    showText(cmbCalendarFont, fields.calendarFont);
    showText(txtGridTitle, fields.gridTitle);
    showText(txtGridNotes, fields.gridNotes);
    showText(cmbGridFont, fields.gridFont);
    showText(txtCalendarCopies, fields.calendarCopies);
    showText(txtGridCopies, fields.gridCopies);
    showText(cmbTearsheetFont, fields.tearsheetFont);
    showText(txtEmailSubject, fields.emailSubject);
    showText(txtEmailBody, fields.emailBody);
    showText(txtOutlookSubject, fields.outlookSubject);
    showText(txtOutlookBody, fields.outlookBody);
    showNormalPointer();
    cmdOK->setFocus();
}

bool frmPSetup::Form_Unload() {
    showHourglass();
    main_.show();
    return true;
}

// The printer chosen serves the rest of the run; nothing of it is stored.
void frmPSetup::cmbPrinters_Click() {
    if (cmbPrinters->currentIndex() != -1) {
        choosePrinter(ctx_, cmbPrinters->currentText());
    }
}

void frmPSetup::cmdOK_Click() {
    PrinterSetupFields fields;
    fields.calendarFont = cmbCalendarFont->currentText();
    fields.gridFont = cmbGridFont->currentText();
    fields.tearsheetFont = cmbTearsheetFont->currentText();
    // The entry chosen counts: a size typed that is no entry of the list does not.
    const int size = cmbTearsheetFontsize->currentIndex();
    fields.tearsheetFontsize = size >= 0 ? cmbTearsheetFontsize->itemText(size) : QString();
    fields.calendarTitle = txtCalendarTitle->text();
    fields.calendarNotes = txtCalendarNotes->text();
    fields.calendarUseFirst = chkCalendarUseFirst->isChecked();
    fields.calendarHideTime = chkCalendarHideTime->isChecked();
    fields.gridTitle = txtGridTitle->text();
    fields.gridNotes = txtGridNotes->text();
    fields.emailSubject = txtEmailSubject->text();
    fields.emailBody = txtEmailBody->text();
    fields.outlookSubject = txtOutlookSubject->text();
    fields.outlookBody = txtOutlookBody->text();
    fields.calendarCopies = txtCalendarCopies->text();
    fields.gridCopies = txtGridCopies->text();
    savePrinterSetup(ws_, ctx_, fields);
    unload();
}

void frmPSetup::cmdCancel_Click() {
    unload();
}
