#pragma once

#include "constraints/daypicker.h"
#include "core/forms/form.h"

#include <array>

class MonthCells;
class QComboBox;
class QGroupBox;
class QLabel;
class QPushButton;
struct Context;
struct Workspace;

// The month day picker, a face of the program's window in the main window's place: the
// month's days as cells that a click picks or lets go, for the month's holidays, one agent's
// vacation days or the month's noted days, by gDayPickerMode. The picks live in the cells
// until OK, or until the picker turns to another agent. The cells are "labDay(0)" to
// "labDay(36)", the day d standing at d - 1 + gFirstWeekday; the column heads are
// "labDayTitle(0)" to "labDayTitle(6)".
class frmHolidays : public Form {
    Q_OBJECT

public:
    static constexpr int kCells = 37;

    frmHolidays(Workspace& ws, Context& ctx, MainForm& main, FaceWindow& window);

    void Form_Activate() override;
    void labDay_MouseDown(int index);
    void cmbAgent_Click();
    void cmdOK_Click();
    void cmdCancel_Click();

    // Whether the cell shows its day as picked.
    bool isSelected(int index) const { return selected_[index]; }

    QGroupBox* fraMonth;
    QLabel* labMonth;
    std::array<QLabel*, 7> labDayTitle;
    std::array<QLabel*, kCells> labDay;
    QComboBox* cmbAgent;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;

protected:
    void Form_Load() override;
    bool Form_Unload() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void paintCell(int index, bool selected);
    // Shows the month's days, picked as the mode's table says, and hides the other cells.
    void showDays();
    PickedDays picks() const;

    Workspace& ws_;
    Context& ctx_;
    MainForm& main_;
    MonthCells* days_;
    std::array<bool, kCells> selected_{};
};
