#pragma once

#include "core/forms/form.h"

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLineEdit;
class QPushButton;
struct Context;
struct Workspace;

// The fonts, titles, remarks and copies of the reports, the two calendar options, the
// printer for the run, and the subjects and bodies of the exports: a face of the program's
// window in the main window's place. OK takes everything into the workspace and saves it;
// the printer chosen serves the rest of the run, whatever the dialog's end.
class frmPSetup : public Form {
    Q_OBJECT

public:
    frmPSetup(Workspace& ws, Context& ctx, MainForm& main, FaceWindow& window);

    void Form_Activate() override;
    void cmbPrinters_Click();
    void cmdOK_Click();
    void cmdCancel_Click();

    QGroupBox* fraCalendar;
    QLineEdit* txtCalendarTitle;
    QLineEdit* txtCalendarNotes;
    QComboBox* cmbCalendarFont;
    QLineEdit* txtCalendarCopies;
    QCheckBox* chkCalendarUseFirst;
    QCheckBox* chkCalendarHideTime;
    QGroupBox* fraGrid;
    QLineEdit* txtGridTitle;
    QLineEdit* txtGridNotes;
    QComboBox* cmbGridFont;
    QLineEdit* txtGridCopies;
    QGroupBox* fraTearsheet;
    QComboBox* cmbTearsheetFont;
    QComboBox* cmbTearsheetFontsize;
    QGroupBox* frmPrinter;
    QComboBox* cmbPrinters;
    QGroupBox* fraEmail;
    QLineEdit* txtEmailSubject;
    QLineEdit* txtEmailBody;
    QGroupBox* fraOutlook;
    QLineEdit* txtOutlookSubject;
    QLineEdit* txtOutlookBody;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;

protected:
    void Form_Load() override;
    bool Form_Unload() override;

private:
    void buildReportFrames();
    void buildMailFrames();

    Workspace& ws_;
    Context& ctx_;
    MainForm& main_;
};
