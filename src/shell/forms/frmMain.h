#pragma once

#include <QMainWindow>
#include <QPointer>

#include <array>
#include <optional>

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
class QScrollBar;
class frmWholeCalendar;
struct Context;
struct Workspace;

// The one window that lives for the whole run. Its controls follow the Workspace in the
// normal face and are all dead in the busy face, while a form or a long command runs.
// Every control carries its name as its objectName; the print boxes are "chkPrint(0)" to
// "chkPrint(5)".
class frmMain : public QMainWindow {
    Q_OBJECT

public:
    // programFile is the name of the program's file without its path; the caption shows the
    // workspace's tag only under the program's own name.
    frmMain(Workspace& ws, Context& ctx, const QString& programFile, QWidget* parent = nullptr);
    ~frmMain() override;

    void modEnterBusyState();
    void modLeaveBusyState();
    void modFillAgentList();
    void modUpdateAgentList();
    void modUpdateCmbViewEdit();

    // The window's events, named as the rest of the program calls them.
    void Form_Activate();
    void Form_GotFocus();
    // Closing the window: true when it may close, false when the user cancelled.
    bool Form_Unload();
    void mnuFExit_Click();
    void lstAgents_Click();
    void lstAgents_DblClick();
    void fraPrint_Click();

    // Opens the schedule file the program was started with; path becomes "0".
    void modOpenFromCommandLine(QString& path);

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

    // The month stepper moved.
    void vscDate_Change();

    // The file commands.
    void mnuFile_Click();
    void mnuFNew_Click();
    void mnuFOpen_Click();
    void mnuFSaveAs_Click();

    // The generate command, and the review form it opens.
    void cmdGenerate_Click();
    void showWholeCalendar();

    // The forms that the view/edit list and the Edit menu open.
    enum class ViewForm { Schedule, DailyShifts, AllConstraints, FontsAndPrinter };
    static std::optional<ViewForm> viewFormNamed(const QString& item);
    void cmdViewEdit_Click();

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
    QScrollBar* vscDate;
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
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    void Form_Load();
    void buildControls();
    void buildMenus();
    void endProgram();

    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    QString windowCaption() const;
    void setAgentFrameCaption();
    void makeDefaultButton(QPushButton* button);
    void pressGenerate(int listIndex);
    void showToFront();
    void mirrorPrintAndEngine();
    void showPrintAndEngine();
    // The status frame in the month frame's place, telling what the command does.
    void showStatus(const QString& text);
    // A long command begins: its status shows and the window goes busy under the hourglass.
    void beginLongCommand(const QString& text);
    // Each group of commands connects its own controls.
    void connectAgentCommands();
    void connectMonthChange();
    void connectFileCommands();
    void connectGenerate();
    std::optional<int> constraintAgent();
    void connectViewEdit();
    void showProgress(double done);
    void openFromMenu(ViewForm form);
    bool viewFormReady(ViewForm form);
    void showViewForm(ViewForm form);

    Workspace& ws_;
    Context& ctx_;
    QString programFile_;
    QPointer<frmWholeCalendar> wholeCalendar_;
    // Set when another of the program's windows took the activation from this one, so that
    // coming back rebuilds the controls; a message box or another application does not.
    bool activationLostToForm_ = false;
};
