#pragma once

#include "core/forms/form.h"
#include "shell/mainview.h"
#include "shell/viewedit.h"

#include <array>
#include <functional>

class FaceWindow;
class MonthStepper;
class QAction;
class QCheckBox;
class QComboBox;
class QFrame;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QMenu;
class QPushButton;
class frmAbout;
class frmBoth;
class frmHolidays;
class frmPSetup;
class frmRestrictions;
class frmViewDay;
class frmWholeCalendar;
struct Context;
struct Workspace;

// The main window: the face of the program's window that lives for the whole run. Its
// controls follow the Workspace in the normal face and are all dead in the busy face, while
// another form or a long command runs. Every control carries its name as its objectName;
// the print boxes are "chkPrint(0)" to "chkPrint(5)". The commands' rules are logic
// routines of the shell; the events here hand them the controls' values and show what they
// leave.
class frmMain : public MainForm, public MainView {
    Q_OBJECT

public:
    // programFile is the name of the program's file without its path; the caption shows the
    // workspace's tag only under the program's own name. Makes the other forms as faces of
    // the same window, fits the window to them and loads this form.
    frmMain(Workspace& ws, Context& ctx, FaceWindow& window, const QString& programFile);

    void modEnterBusyState();
    void modLeaveBusyState() override;
    void modFillAgentList();
    void modUpdateAgentList();
    void modUpdateCmbViewEdit();

    // MainView: what the command flows ask of the window.
    void beginLongCommand(const QString& status) override;
    void showOpenedSchedule() override;
    void showReview() override;

    void Form_Activate() override;
    void Form_GotFocus();
    bool Form_Unload() override;
    void mnuFExit_Click();
    void lstAgents_Click();
    void lstAgents_DblClick();
    void fraPrint_Click();

    // The agent list's commands.
    void cmdAdd_Click();
    void cmdChange_Click();
    void cmdOK_Click();
    void cmdCancel_Click();
    void cmdDelete_Click();
    void cmdResolveName_Click();
    void txtEmail_Change();
    void cmdVacations_Click();
    void cmdRestrictions_Click();
    void cmdHolidays_Click();
    void cmdNotes_Click();

    void vscDate_Change();

    void mnuFile_Click();
    void mnuFNew_Click();
    void mnuFOpen_Click();
    void mnuFSaveAs_Click();
    void mnuFSaveIcs_Click();

    void cmdGenerate_Click();
    void cmdViewEdit_Click();

    // Printing: the print button, and a single report or export from the File menu.
    void cmdPrint_Click();
    void modPrintIndividualFormat(int position);
    // The export button.
    void cmdExport_Click();
    // The Help menu.
    void mnuHHelp_Click();
    void mnuHDump_Click();
    void mnuHOpenDump_Click();
    void mnuHAbout_Click();

    frmWholeCalendar* review() const { return review_; }
    // The progress bar filled by the share of the work done; a share beyond the whole fills it.
    void showProgress(double done);

    // The controls, as the other forms and commands reach them.
    QGroupBox* fraEditAgent;
    QPushButton* cmdResolveName;
    QLineEdit* txtEmail;
    QPushButton* cmdCancel;
    QPushButton* cmdOK;
    QLineEdit* txtFirstName;
    QLineEdit* txtLastName;
    QLabel* labEmail;
    QLabel* labFirstName;
    QLabel* labLastName;
    QGroupBox* fraPrint;
    std::array<QCheckBox*, 6> chkPrint;
    QPushButton* cmdPrint;
    QGroupBox* fraExport;
    QPushButton* cmdExport;
    QGroupBox* fraGenerate;
    QComboBox* cmbGenerate;
    QPushButton* cmdGenerate;
    QGroupBox* fraViewEdit;
    QComboBox* cmbViewEdit;
    QPushButton* cmdViewEdit;
    QGroupBox* fraAgents;
    QListWidget* lstAgents;
    QPushButton* cmdAdd;
    QPushButton* cmdChange;
    QPushButton* cmdDelete;
    QPushButton* cmdVacations;
    QPushButton* cmdRestrictions;
    QPushButton* cmdHolidays;
    QPushButton* cmdNotes;
    QGroupBox* fraStatus;
    QLabel* labStatus;
    QLabel* labStatusHigh;
    QFrame* picStatus;
    QFrame* shpStatus;
    QGroupBox* fraDate;
    MonthStepper* vscDate;
    QLabel* labDate;

    // The menu bar: the four menus, the two submenus and every item.
    QMenu* mnuFile;
    QAction* mnuFNew;
    QAction* mnuFOpen;
    QAction* mnuFSaveAs;
    QMenu* mnuFPrint;
    QAction* mnuFPCalendar;
    QAction* mnuFPGrid;
    QAction* mnuFPTearsheet;
    QMenu* mnuFExport;
    QAction* mnuFEEmail;
    QAction* mnuFEOutlook;
    QAction* mnuFECreator;
    QAction* mnuFSaveIcs;
    QAction* mnuFExit;
    QMenu* mnuEdit;
    QAction* mnuESchedule;
    QAction* mnuEShifts;
    QAction* mnuEConstraints;
    QAction* mnuEFonts;
    QMenu* mnuGenerate;
    QAction* mnuGSmartRandom;
    QAction* mnuGShuffled;
    QAction* mnuGMixed;
    QAction* mnuGHorizontal;
    QMenu* mnuHelp;
    QAction* mnuHHelp;
    QAction* mnuHDump;
    QAction* mnuHOpenDump;
    QAction* mnuHAbout;

signals:
    // The program ends: by File Exit, or after the window's closing was not cancelled.
    void programEnds();

protected:
    void Form_Load() override;
    void focusInEvent(QFocusEvent* event) override;

private:
    void buildControls();
    QWidget* buildCommandFrames();
    void buildEditFrame();
    void buildMenus();
    void connectCommands();
    void connectAgentCommands();
    // Runs a long command; a close of the window that came while it ran is taken after it.
    void runLongCommand(const std::function<void()>& command);
    // The generate command's questions, engine and review.
    void generate();

    QString windowCaption() const;
    void setAgentFrameCaption();
    void makeDefaultButton(QPushButton* button);
    void pressGenerate(int listIndex);
    void showToFront();
    void showPrintAndEngine();
    void showStatus(const QString& text);
    void showEditFrame(bool editing);
    void clearEditFrame();
    void openViewForm(ViewForm form);
    void showViewForm(ViewForm form);
    std::optional<int> constraintAgent();

    Workspace& ws_;
    Context& ctx_;
    QString programFile_;
    frmWholeCalendar* review_;
    frmViewDay* shifts_;
    frmHolidays* dayPicker_;
    frmRestrictions* restrictions_;
    frmBoth* constraints_;
    frmAbout* about_;
    frmPSetup* printerSetup_;
};
