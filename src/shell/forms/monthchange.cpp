// The month stepper. Only the difference between its new and its last value counts: one
// step down is the month before, one step up the month after. Any other difference (a
// drag of the thumb, or a step after a refused one) erases the month's data all the same
// and leaves the month as it is.

#include "core/model/calendar.h"
#include "core/model/monthdata.h"
#include "core/model/textrules.h"
#include "core/model/workspace.h"
#include "core/services/context.h"
#include "core/services/dialogs.h"
#include "core/services/log.h"
#include "core/services/msgbox.h"
#include "persistence/workspacefile.h"
#include "shell/forms/frmMain.h"
#include "shell/startmonth.h"

#include <QLabel>
#include <QListWidget>
#include <QScrollBar>

void frmMain::connectMonthChange() {
    connect(vscDate, &QScrollBar::valueChanged, this, [this] {
        if (!vscDate->isSliderDown()) {
            vscDate_Change();
        }
    });
    connect(vscDate, &QScrollBar::sliderReleased, this, [this] { vscDate_Change(); });
}

void frmMain::vscDate_Change() {
    if (ws_.gHasHolidays == 1 || ws_.gHasNotedDays == 1 || ws_.gHasVacations == 1 ||
        ws_.gScheduleGenerated == 1) {
        const MsgAnswer answer =
            msgBox(ctx_.dialogs,
                   QStringLiteral("Changing the date of the calendar will erase the "
                                  "schedule, as well as all holidays, vacations, and "
                                  "notes.  Do you want to proceed anyway?"),
                   MsgIcon::Exclamation, MsgButtons::YesNo, 2);
        // The bar keeps its new value and the last value stays: the next step is out of step.
        if (answer != MsgAnswer::Yes) {
            return;
        }
    }
    eraseMonthData(ws_);
    ws_.gHasHolidays = 0;
    ws_.gHasNotedDays = 0;
    ws_.gHasVacations = 0;
    ws_.gScheduleGenerated = 0;

    const int delta = vscDate->value() - ws_.gScrollValue;
    ws_.gScrollValue = vscDate->value();
    if (delta == 1 || delta == -1) {
        ws_.gCurrentMonth -= delta;
        if (ws_.gCurrentMonth < 1) {
            ws_.gCurrentMonth = 12;
            ws_.gCurrentYear -= 1;
        } else if (ws_.gCurrentMonth > 12) {
            ws_.gCurrentMonth = 1;
            ws_.gCurrentYear += 1;
        }
        labDate->setText(ws_.currentMonthName() + QLatin1Char(' ') +
                         QString::number(ws_.gCurrentYear));
    }
    modStatus(ws_, ctx_,
              QStringLiteral("Changing the present month to ") + ws_.currentMonthName() +
                  QLatin1Char(' ') + QString::number(ws_.gCurrentYear));
    modSaveWorkspace(ws_, ctx_, QString());
    modSetupMonth(ws_);
    modLeaveBusyState();
    lstAgents->setFocus();
}
