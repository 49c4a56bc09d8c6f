#include "core/model/agentlist.h"

#include "core/model/textrules.h"
#include "core/model/workspace.h"

#include <cstddef>

namespace {

constexpr int kLastDay = kMonthDaySlots - 1;

std::size_t row(int agent) {
    return static_cast<std::size_t>(agent);
}

// Moves agent from's row to agent to's place in the name arrays; from keeps its texts.
void copyNames(Workspace& ws, int from, int to) {
    ws.gAgentLast[row(to)] = ws.gAgentLast[row(from)];
    ws.gAgentFirst[row(to)] = ws.gAgentFirst[row(from)];
    ws.gAgentEmail[row(to)] = ws.gAgentEmail[row(from)];
}

void copyDays(Workspace& ws, int from, int to, int lastDay) {
    for (int day = 1; day <= lastDay; ++day) {
        ws.gVacation[row(to)][day] = ws.gVacation[row(from)][day];
    }
}

void clearDays(Workspace& ws, int agent, int lastDay) {
    for (int day = 1; day <= lastDay; ++day) {
        ws.gVacation[row(agent)][day] = 0;
    }
}

// Shift 0 holds no restriction: the moves and the clearing leave it alone.
void copyRestrictions(Workspace& ws, int from, int to) {
    for (int weekday = 0; weekday < kWeekdays; ++weekday) {
        for (int shift = 1; shift <= kMaxShift; ++shift) {
            ws.gRestriction[row(to)][weekday][shift] = ws.gRestriction[row(from)][weekday][shift];
        }
    }
}

void clearRestrictions(Workspace& ws, int agent) {
    for (int weekday = 0; weekday < kWeekdays; ++weekday) {
        for (int shift = 1; shift <= kMaxShift; ++shift) {
            ws.gRestriction[row(agent)][weekday][shift] = 0;
        }
    }
}

void resizeAgents(Workspace& ws, int count) {
    const std::size_t size = row(count) + 1;
    ws.gAgentFirst.resize(size);
    ws.gAgentLast.resize(size);
    ws.gAgentEmail.resize(size);
    ws.gAgentKey.resize(size);
    ws.gAgentFirstKey.resize(size);
    ws.gVacation.resize(size);
    ws.gRestriction.resize(size);
}

}  // namespace

QString agentListItem(const QString& last, const QString& first) {
    return last + QStringLiteral(", ") + first;
}

int agentListPosition(const Workspace& ws, const QString& item) {
    int position = 0;
    for (int i = 1; i <= ws.gAgentCount; ++i) {
        if (QString::compare(agentListItem(ws.gAgentLast[row(i)], ws.gAgentFirst[row(i)]), item,
                             Qt::CaseInsensitive) <= 0) {
            position = i;
        }
    }
    return position;
}

int findAgentNamed(const Workspace& ws, const QString& last, const QString& first, int except) {
    const QString lastUpper = last.toUpper();
    const QString firstUpper = first.toUpper();
    for (int i = 1; i <= ws.gAgentCount; ++i) {
        if (i != except && ws.gAgentLast[row(i)].toUpper() == lastUpper &&
            ws.gAgentFirst[row(i)].toUpper() == firstUpper) {
            return i;
        }
    }
    return 0;
}

bool hasProperCapitals(const QString& name) {
    return modProperCase(name) == name;
}

QString agentArticle(const QString& first) {
    const QString initial = first.left(1).toUpper();
    const bool vowel = !initial.isEmpty() && QStringLiteral("AEIOU").contains(initial);
    return vowel ? QStringLiteral("an") : QStringLiteral("a");
}

int addAgent(Workspace& ws, const QString& last, const QString& first, const QString& email) {
    const int position = agentListPosition(ws, agentListItem(last, first));
    ws.gAgentCount += 1;
    resizeAgents(ws, ws.gAgentCount);
    const int agent = position + 1;
    for (int i = ws.gAgentCount - 1; i >= agent; --i) {
        copyNames(ws, i, i + 1);
    }
    ws.gAgentLast[row(agent)] = last;
    ws.gAgentFirst[row(agent)] = first;
    ws.gAgentEmail[row(agent)] = email;

    const int monthDays = ws.currentMonthDays();
    for (int i = ws.gAgentCount - 1; i >= agent; --i) {
        copyDays(ws, i, i + 1, monthDays);
    }
    clearDays(ws, agent, monthDays);
    for (int i = ws.gAgentCount - 1; i >= agent; --i) {
        copyRestrictions(ws, i, i + 1);
    }
    clearRestrictions(ws, agent);
    return position;
}

int changeAgent(Workspace& ws, int listIndex, const QString& last, const QString& first,
                const QString& email) {
    const int old = listIndex + 1;
    if (old < 1 || old > ws.gAgentCount) {
        return listIndex;
    }
    // The agent's constraints wait aside while its row leaves and comes back elsewhere.
    DayFlags days{};
    for (int day = 1; day <= kLastDay; ++day) {
        days[day] = ws.gVacation[row(old)][day];
    }
    ShiftTable restrictions{};
    for (int weekday = 0; weekday < kWeekdays; ++weekday) {
        for (int shift = 1; shift <= kMaxShift; ++shift) {
            restrictions[weekday][shift] = ws.gRestriction[row(old)][weekday][shift];
        }
    }
    clearDays(ws, old, kLastDay);
    clearRestrictions(ws, old);

    // Out of the list: the rows behind it close up. The last row keeps a stale copy, which
    // the insertion overwrites, so the arrays never change their size.
    ws.gAgentCount -= 1;
    for (int i = old + 1; i <= ws.gAgentCount + 1; ++i) {
        copyNames(ws, i, i - 1);
        copyDays(ws, i, i - 1, kLastDay);
        copyRestrictions(ws, i, i - 1);
    }

    const int position = agentListPosition(ws, agentListItem(last, first));
    ws.gAgentCount += 1;
    const int agent = position + 1;
    for (int i = ws.gAgentCount - 1; i >= agent; --i) {
        copyNames(ws, i, i + 1);
        copyDays(ws, i, i + 1, kLastDay);
        copyRestrictions(ws, i, i + 1);
    }
    ws.gAgentLast[row(agent)] = last;
    ws.gAgentFirst[row(agent)] = first;
    ws.gAgentEmail[row(agent)] = email;
    for (int day = 1; day <= kLastDay; ++day) {
        ws.gVacation[row(agent)][day] = days[day];
    }
    for (int weekday = 0; weekday < kWeekdays; ++weekday) {
        for (int shift = 1; shift <= kMaxShift; ++shift) {
            ws.gRestriction[row(agent)][weekday][shift] = restrictions[weekday][shift];
        }
    }
    return position;
}

void deleteAgent(Workspace& ws, int listIndex) {
    const int gone = listIndex + 1;
    if (gone < 1 || gone > ws.gAgentCount) {
        return;
    }
    ws.gAgentCount -= 1;
    for (int i = gone + 1; i <= ws.gAgentCount + 1; ++i) {
        copyNames(ws, i, i - 1);
    }
    // Without vacations in the month the table is left as it stands, and only shrinks.
    if (ws.gHasVacations != 0) {
        const int monthDays = ws.currentMonthDays();
        clearDays(ws, gone, monthDays);
        for (int i = gone + 1; i <= ws.gAgentCount + 1; ++i) {
            copyDays(ws, i, i - 1, monthDays);
        }
    }
    if (ws.gHasRestrictions != 0) {
        clearRestrictions(ws, gone);
        for (int i = gone + 1; i <= ws.gAgentCount + 1; ++i) {
            copyRestrictions(ws, i, i - 1);
        }
    }
    resizeAgents(ws, ws.gAgentCount);
}
