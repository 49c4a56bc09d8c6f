#pragma once

#include "constraints/shifttable.h"
#include "core/forms/form.h"

#include <array>

class QButtonGroup;
class QGroupBox;
class QLineEdit;
class QRadioButton;
class QPushButton;
struct Context;
struct Workspace;

// The shifts of one weekday, gEditDay, a face of the program's window in the weekly view's
// place: how many shifts the day has, and each shift's time text and agents. OK checks the
// shifts and saves the table at once. The controls are "optShifts(0)" to "optShifts(6)",
// "fraShift(0)" to "fraShift(5)", "txtShift(0)" to "txtShift(5)" and "optAgents1(0)" to
// "optAgents6(3)", option k of a shift standing for k + 1 agents.
class frmDay : public Form {
    Q_OBJECT

public:
    frmDay(Workspace& ws, Context& ctx, Form& view, FaceWindow& window);

    void Form_Activate() override;
    void Form_Deactivate() override;
    void optShifts_Click(int index);
    void cmdOK_Click();
    void cmdCancel_Click();

    QGroupBox* fraShiftsPerDay;
    std::array<QRadioButton*, kEditorShifts + 1> optShifts;
    std::array<QGroupBox*, kEditorShifts> fraShift;
    std::array<QLineEdit*, kEditorShifts> txtShift;
    // optAgents[n - 1][k] is optAgentsN(k).
    std::array<std::array<QRadioButton*, 4>, kEditorShifts> optAgents;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;

protected:
    void Form_Load() override;

private:
    int chosenShifts() const;

    Workspace& ws_;
    Context& ctx_;
    Form& view_;
    std::array<QButtonGroup*, kEditorShifts> agentGroups_;
};
