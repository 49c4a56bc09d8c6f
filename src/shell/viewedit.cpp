#include "shell/viewedit.h"

#include "core/model/workspace.h"

std::optional<ViewForm> viewFormNamed(const QString& item) {
    if (item == QStringLiteral("Fonts & printer setup")) {
        return ViewForm::FontsAndPrinter;
    }
    if (item == QStringLiteral("All constraints")) {
        return ViewForm::AllConstraints;
    }
    if (item == QStringLiteral("Schedule")) {
        return ViewForm::Schedule;
    }
    if (item == QStringLiteral("Daily shifts & times")) {
        return ViewForm::DailyShifts;
    }
    return std::nullopt;
}

QStringList viewEditItems(const Workspace& ws) {
    QStringList items;
    if (ws.gScheduleGenerated == 1) {
        items.append(QStringLiteral("Schedule"));
    }
    items.append(QStringLiteral("Daily shifts & times"));
    if (ws.gHasVacations != 0 || ws.gHasHolidays != 0 || ws.gHasNotedDays != 0 ||
        ws.gHasRestrictions != 0) {
        items.append(QStringLiteral("All constraints"));
    }
    items.append(QStringLiteral("Fonts & printer setup"));
    return items;
}
