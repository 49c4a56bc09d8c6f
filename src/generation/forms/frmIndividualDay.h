#pragma once

#include "core/forms/form.h"
#include "generation/review.h"

#include <array>

class FaceWindow;
class QComboBox;
class QGroupBox;
class QPushButton;
struct Context;
struct Workspace;

// One day of the schedule, a face of the program's window in the review's place: each
// position of the day is a list of the agents' keys and "Leave empty", and OK writes the
// day back as the lists show it. Nothing is checked: the user has the last word. The day is
// gSelectedDay.
//
// Every control carries its name as its objectName: "fraShift(0)" to "fraShift(5)" are the
// frames of shifts 1 to 6, and "cmbShift1(0)" to "cmbShift6(3)" the lists of their slots.
// The review shows it; closed by the window's close box it changes nothing.
class frmIndividualDay : public Form {
    Q_OBJECT

public:
    frmIndividualDay(Workspace& ws, Context& ctx, Form& calendar, FaceWindow& window);

    // Shows the selected day's shifts, each list on its cell's key.
    void Form_Activate() override;
    // Hides every frame and list, so the next day starts from a clean form.
    void Form_Deactivate() override;
    // Writes the day's positions from the lists and gives the screen back to the review.
    void cmdOK_Click();

    std::array<QGroupBox*, kDayEditorShifts> fraShift;
    // cmbShift[n - 1][k] is the list of shift n, slot k.
    std::array<std::array<QComboBox*, kDayEditorSlots>, kDayEditorShifts> cmbShift;
    QPushButton* cmdOK;

protected:
    void Form_Load() override;
    bool Form_Unload() override;

private:
    void buildControls();

    Workspace& ws_;
    Context& ctx_;
    Form& calendar_;
};
