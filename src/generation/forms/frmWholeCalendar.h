#pragma once

#include <QPointer>
#include <QWidget>

#include <array>

class QComboBox;
class QLabel;
class QPushButton;
class frmIndividualDay;
class frmMain;
struct Context;
struct Workspace;

// The generated month as a calendar of seven columns and six rows, in the main window's
// place. From here the user opens one day in the day editor, deals again with the Shuffled
// engine, or starts a serial engine from another agent. Every control carries its name as
// its objectName: "labDay(0)" to "labDay(36)" and "labNumber(0)" to "labNumber(36)" are the
// cells, day d standing at index d - 1 + gFirstWeekday, and "labDayName(0)" to
// "labDayName(6)" the column heads.
//
// Making the form loads it: it takes the main window's place and caption, shows itself and
// hides the main window. Make it with new: it deletes itself when it closes, and the day
// editor goes with it.
class frmWholeCalendar : public QWidget {
    Q_OBJECT

public:
    static constexpr int kCells = 37;

    frmWholeCalendar(Workspace& ws, Context& ctx, frmMain& main);
    ~frmWholeCalendar() override;

    // Fills the cells from the schedule; runs each time the form comes on the screen.
    void Form_Activate();
    // A press on a cell: a holiday is only named, any other day opens in the day editor.
    void labDay_MouseDown(int index);
    void labNumber_MouseDown(int index);
    // Deals the month again with the Shuffled engine.
    void cmdReschedule_Click();
    // Runs the selected serial engine again from the agent chosen in the list.
    void cmbAgents_Click();
    // Closes the review and gives the main window back its normal face.
    void cmdOK_Click();

    // The day editor while it is loaded.
    frmIndividualDay* dayEditor() const;

    std::array<QLabel*, 7> labDayName;
    std::array<QLabel*, kCells> labDay;
    std::array<QLabel*, kCells> labNumber;
    QLabel* labInstruction;
    QComboBox* cmbAgents;
    QPushButton* cmdReschedule;
    QPushButton* cmdOK;

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildControls();
    void Form_Load();
    void Form_Unload();
    void placeEngineControls(int engine);

    Workspace& ws_;
    Context& ctx_;
    frmMain& main_;
    QPointer<frmIndividualDay> dayEditor_;
};
