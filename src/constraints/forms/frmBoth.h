#pragma once

#include "core/forms/form.h"

#include <array>

class QGroupBox;
class QListWidget;
class QPushButton;
struct Context;
struct Workspace;

// All of the month's constraints on one face of the program's window, in the main window's
// place: four lists, vacation days, shift restrictions, holidays and noted days, "lstDays(0)"
// to "lstDays(3)" with their "cmdClear(0)" to "cmdClear(3)". A list can only be cleared as a
// whole; the workspace loses what an emptied list held at OK.
class frmBoth : public Form {
    Q_OBJECT

public:
    frmBoth(Workspace& ws, Context& ctx, MainForm& main, FaceWindow& window);

    void Form_Activate() override;
    void cmdClear_Click(int index);
    void cmdOK_Click();
    void cmdCancel_Click();
    void cmdPrint_Click();

    QGroupBox* fraVacationDays;
    QGroupBox* fraShiftRestrictions;
    QGroupBox* fraHolidays;
    QGroupBox* fraNotedDays;
    std::array<QListWidget*, 4> lstDays;
    std::array<QPushButton*, 4> cmdClear;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;
    QPushButton* cmdPrint;

protected:
    void Form_Load() override;
    bool Form_Unload() override;

private:
    // The form's controls all live, or all dead while it prints.
    void setLive(bool live);

    Workspace& ws_;
    Context& ctx_;
    MainForm& main_;
};
