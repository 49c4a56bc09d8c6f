#include "core/model/workspace.h"

int Workspace::currentMonthDays() const {
    return gCurrentMonth >= 1 && gCurrentMonth <= 12 ? gMonthDays[gCurrentMonth] : 0;
}

QString Workspace::currentMonthName() const {
    return gCurrentMonth >= 1 && gCurrentMonth <= 12 ? gMonthNames[gCurrentMonth] : QString();
}

QString Workspace::currentMonthAndYear() const {
    return currentMonthName() + QLatin1Char(' ') + QString::number(gCurrentYear);
}

QString Workspace::agentName(int agent) const {
    return hasAgent(agent) ? gAgentFirst[agent] + QLatin1Char(' ') + gAgentLast[agent]
                           : QStringLiteral(" ");
}

QString Workspace::versionText() const {
    return QStringLiteral("%1.%2.%3").arg(gVersionMajor).arg(gVersionMinor).arg(gVersionRevision);
}

void Workspace::redimAgents(int count) {
    const auto size = static_cast<std::size_t>(count) + 1;
    gAgentLast.assign(size, QString());
    gAgentFirst.assign(size, QString());
    gAgentEmail.assign(size, QString());
    gAgentKey.assign(size, QString());
    gAgentFirstKey.assign(size, QString());
    gVacation.assign(size, DayFlags{});
    gRestriction.assign(size, ShiftTable{});
}
