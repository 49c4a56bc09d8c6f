#include "constraints/allconstraints.h"

#include "core/model/workspace.h"
#include "core/services/context.h"
#include "core/services/log.h"
#include "core/services/msgbox.h"
#include "persistence/workspacefile.h"

namespace {

const QString kIndent = QStringLiteral("    ");

// Each of the agent's lines, under one heading with the agent's name; none for an agent with
// nothing to show.
template <typename Lines>
void addAgentLines(const Workspace& ws, QStringList& list, Lines&& linesOf) {
    for (int agent = 1; agent <= ws.gAgentCount; ++agent) {
        const QStringList lines = linesOf(agent);
        if (!lines.isEmpty()) {
            list.append(ws.agentName(agent));
            list.append(lines);
        }
    }
}

QStringList dayLines(const Workspace& ws, const auto& flags, const auto& texts) {
    QStringList lines;
    for (int d = 1; d <= ws.currentMonthDays(); ++d) {
        if (flags[d] == 1) {
            lines.append(texts[d] + QStringLiteral(", ") + ws.currentMonthName() +
                         QLatin1Char(' ') + QString::number(d));
        }
    }
    return lines;
}

}  // namespace

QStringList vacationLines(const Workspace& ws) {
    QStringList list;
    const int days = ws.currentMonthDays();
    addAgentLines(ws, list, [&](int agent) {
        QStringList runs;
        for (int d = 1; d <= days; ++d) {
            if (ws.gVacation[agent][d] != 1) {
                continue;
            }
            const int first = d;
            while (d < days && ws.gVacation[agent][d + 1] == 1) {
                ++d;
            }
            QString run =
                kIndent + ws.currentMonthName() + QLatin1Char(' ') + QString::number(first);
            if (d > first) {
                run += QLatin1Char('-') + QString::number(d);
            }
            runs.append(run);
        }
        return runs;
    });
    return list;
}

// The whole width of the table, shifts 1 to 6 of every weekday, whatever the weekly table
// holds now.
QStringList restrictionLines(const Workspace& ws) {
    QStringList list;
    addAgentLines(ws, list, [&](int agent) {
        QStringList lines;
        for (int w = 0; w < kWeekdays; ++w) {
            for (int s = 1; s <= kMaxShift; ++s) {
                if (ws.gRestriction[agent][w][s] != 0) {
                    lines.append(kIndent + ws.gDayNames[w] + QStringLiteral(", ") +
                                 ws.gShiftText[w][s]);
                }
            }
        }
        return lines;
    });
    return list;
}

QStringList holidayLines(const Workspace& ws) {
    return dayLines(ws, ws.gHoliday, ws.gHolidayName);
}

QStringList notedDayLines(const Workspace& ws) {
    return dayLines(ws, ws.gNoted, ws.gNotedText);
}

bool clearAllAsked(Workspace& ws, Context& ctx, ConstraintKind kind) {
    static const std::array<std::pair<QString, QString>, 4> words = {{
        {QStringLiteral("vacation days?"), QStringLiteral("Erasing all vacation days")},
        {QStringLiteral("shift restrictions?"), QStringLiteral("Erasing all shift restrictions")},
        {QStringLiteral("holidays?"), QStringLiteral("Erasing all holidays")},
        {QStringLiteral("noted days?"), QStringLiteral("Erasing all noted days")},
    }};
    const auto& [question, line] = words[static_cast<std::size_t>(kind)];
    ws.gDirty = 1;
    if (msgBox(ctx.dialogs, QStringLiteral("Are you sure you want to erase all ") + question,
               MsgIcon::Question, MsgButtons::YesNo, 1) != MsgAnswer::Yes) {
        return false;
    }
    modStatus(ws, ctx, line);
    return true;
}

void eraseEmptiedKinds(Workspace& ws, Context& ctx, const std::array<bool, 4>& emptied) {
    const auto rows = static_cast<std::size_t>(ws.gAgentCount) + 1;
    if (emptied[kVacationDays]) {
        ws.gVacation.assign(rows, DayFlags{});
    }
    if (emptied[kShiftRestrictions]) {
        ws.gRestriction.assign(rows, ShiftTable{});
    }
    if (emptied[kHolidays]) {
        ws.gHoliday.fill(0);
        ws.gHolidayName.fill(QString());
    }
    if (emptied[kNotedDays]) {
        ws.gNoted.fill(0);
        ws.gNotedText.fill(QString());
    }
    modSaveWorkspace(ws, ctx, QString());
}
