#pragma once

#include <QWidget>

#include <array>

class QComboBox;
class QGroupBox;
class QPushButton;
class frmWholeCalendar;
struct Context;
struct Workspace;

// One day of the schedule, in the review's place: each position of the day is a list of the
// agents' keys and "Leave empty", and OK writes the day back as the lists show it. Nothing
// is checked: the user has the last word. The day is gSelectedDay.
//
// Every control carries its name as its objectName: "fraShift(0)" to "fraShift(5)" are the
// frames of shifts 1 to 6, and "cmbShift1(0)" to "cmbShift6(3)" the lists of their slots.
// Making the form loads it; the review makes it, shows it and deletes it. Closed by its close
// box it deletes itself and changes nothing.
class frmIndividualDay : public QWidget {
    Q_OBJECT

public:
    static constexpr int kShifts = 6;
    static constexpr int kSlots = 4;

    frmIndividualDay(Workspace& ws, Context& ctx, frmWholeCalendar& calendar);

    // Shows the selected day's shifts, each list on its cell's key.
    void Form_Activate();
    // Hides every frame and list, so the next day starts from a clean form.
    void Form_Deactivate();
    // Writes the day's positions from the lists and gives the screen back to the review.
    void cmdOK_Click();

    std::array<QGroupBox*, kShifts> fraShift;
    // cmbShift[n - 1][k] is the list of shift n, slot k.
    std::array<std::array<QComboBox*, kSlots>, kShifts> cmbShift;
    QPushButton* cmdOK;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void buildControls();
    void Form_Load();
    void Form_Unload();

    Workspace& ws_;
    Context& ctx_;
    frmWholeCalendar& calendar_;
};
