#pragma once

#include "constraints/shifttable.h"
#include "core/forms/form.h"

#include <array>

class QGroupBox;
class QLabel;
class QPushButton;
class frmDay;
struct Context;
struct Workspace;

// The weekly shift table, seven weekdays side by side, a face of the program's window in the
// main window's place. Change opens one weekday in frmDay, whose OK saves at once; this
// form's Cancel puts back the table it found when it opened, and saves that. The controls
// are "fraDay(0)" to "fraDay(6)", "cmdChange(0)" to "cmdChange(6)" and "labShift0(0)" to
// "labShift6(5)", the label of shift i + 1 of weekday w being "labShiftW(i)".
class frmViewDay : public Form {
    Q_OBJECT

public:
    frmViewDay(Workspace& ws, Context& ctx, MainForm& main, FaceWindow& window);

    void Form_Activate() override;
    void Form_Deactivate() override;
    void cmdChange_Click(int weekday);
    void cmdOK_Click();
    void cmdCancel_Click();
    void cmdPrint_Click();

    // The weekday editor, which takes the view's place while a weekday is open.
    frmDay* dayEditor() const { return day_; }

    std::array<QGroupBox*, kWeekdays> fraDay;
    std::array<QPushButton*, kWeekdays> cmdChange;
    // labShift[w][i] is labShiftW(i).
    std::array<std::array<QLabel*, kEditorShifts>, kWeekdays> labShift;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;
    QPushButton* cmdPrint;

protected:
    void Form_Load() override;

private:
    Workspace& ws_;
    Context& ctx_;
    MainForm& main_;
    ShiftTableSnapshot snapshot_;
    frmDay* day_;
};
