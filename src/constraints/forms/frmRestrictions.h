#pragma once

#include "constraints/restrictions.h"
#include "core/forms/form.h"
#include "core/model/workspace.h"

#include <array>

class ElidedLabel;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QPushButton;
struct Context;

// The standing shift restrictions of one agent at a time, a face of the program's window in
// the main window's place: a box for each shift of each weekday, ticked where the agent must
// not be given that shift. The controls are "fraDay(0)" to "fraDay(6)", "chkShift0(0)" to
// "chkShift6(5)" and "labShift0(0)" to "labShift6(5)", box i of weekday w standing for shift
// i + 1 as "chkShiftW(i)".
class frmRestrictions : public Form {
    Q_OBJECT

public:
    frmRestrictions(Workspace& ws, Context& ctx, MainForm& main, FaceWindow& window);

    void Form_Activate() override;
    void cmbAgents_Click();
    void cmdOK_Click();
    void cmdCancel_Click();

    QComboBox* cmbAgents;
    std::array<QGroupBox*, kWeekdays> fraDay;
    // chkShift[w][i] is chkShiftW(i), labShift[w][i] is labShiftW(i).
    std::array<std::array<QCheckBox*, 6>, kWeekdays> chkShift;
    std::array<std::array<ElidedLabel*, 6>, kWeekdays> labShift;
    QLabel* labInstructions;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;

protected:
    void Form_Load() override;
    bool Form_Unload() override;

private:
    // Shows the boxes of the shifts each weekday has, ticked for the agent on show.
    void showBoxes();
    RestrictionBoxes boxes() const;

    Workspace& ws_;
    Context& ctx_;
    MainForm& main_;
};
