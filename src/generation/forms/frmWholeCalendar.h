#pragma once

#include "core/forms/form.h"

#include <array>
#include <optional>

class BalancePanel;
class DayCell;
class ElidedLabel;
class FaceWindow;
class MonthCells;
class QComboBox;
class QGridLayout;
class QLabel;
class QPushButton;
class frmIndividualDay;
struct Context;
struct Workspace;

// The generated month as a calendar of seven columns and six rows, a face of the program's
// window in the main window's place. From here the user opens one day in the day editor,
// deals again with the Shuffled engine, or starts a serial engine from another agent. Every
// control carries its name as its objectName: "labDay(0)" to "labDay(36)" and
// "labNumber(0)" to "labNumber(36)" are the cells, day d standing at index
// d - 1 + gFirstWeekday, and "labDayName(0)" to "labDayName(6)" the column heads. A cell
// whose text does not fit shows that it is cut and has the whole text as its tooltip.
//
// Showing the form loads it: it takes the main window's caption and hides the main window.
// OK or the window's close box unload it, and the day editor with it.
//
// Beside the calendar stands the month's balance, shown when the form is wide enough for
// both and otherwise hidden; the toggle "cmdBalance" shows or hides it at the user's word,
// and shown so, it widens the window as far as the screen allows. Choosing an agent in it
// marks the agent's days in the calendar.
class frmWholeCalendar : public Form {
    Q_OBJECT

public:
    static constexpr int kCells = 37;

    frmWholeCalendar(Workspace& ws, Context& ctx, MainForm& main, FaceWindow& window);

    // Fills the cells from the schedule; runs each time the form comes on the screen.
    void Form_Activate() override;
    // A press on a cell: a holiday is only named, any other day opens in the day editor.
    void labDay_MouseDown(int index);
    void labNumber_MouseDown(int index);
    // Deals the month again with the Shuffled engine.
    void cmdReschedule_Click();
    // Runs the selected serial engine again from the agent chosen in the list.
    void cmbAgents_Click();
    // Closes the review and gives the main window back its normal face.
    void cmdOK_Click();

    // The day editor, which takes the review's place while a day is open.
    frmIndividualDay* dayEditor() const { return dayEditor_; }

    std::array<QLabel*, 7> labDayName;
    std::array<ElidedLabel*, kCells> labDay;
    std::array<QLabel*, kCells> labNumber;
    QLabel* labInstruction;
    QComboBox* cmbAgents;
    QPushButton* cmdReschedule;
    QPushButton* cmdOK;
    BalancePanel* balancePanel;
    QPushButton* cmdBalance;

    // The form asks for room for the calendar and the whole balance, also while the balance
    // is hidden.
    QSize sizeHint() const override;
    // The balance takes its room from what the calendar's cells can give up, so the form
    // never needs more room than the calendar alone: the balance that shows by itself shows
    // only where the cells keep their width, the one the user asked for narrows them.
    QSize minimumSizeHint() const override;

protected:
    void Form_Load() override;
    bool Form_Unload() override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void buildControls();
    void placeEngineControls(int engine);
    void addBalancePanel();
    // Shows the balance as the user chose, or where it fits beside the calendar.
    void fitBalancePanel();
    void markAgentDays(int agent);

    Workspace& ws_;
    Context& ctx_;
    MainForm& main_;
    QGridLayout* grid_;
    std::array<DayCell*, kCells> cells_;
    MonthCells* days_;
    frmIndividualDay* dayEditor_;
    // The width the calendar asks for, its cells as wide as their sample.
    int calendarWidth_ = 0;
    // Whether the user asked for the balance, until then nothing.
    std::optional<bool> balanceShown_;
};
