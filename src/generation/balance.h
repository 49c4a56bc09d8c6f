#pragma once

#include "core/model/workspace.h"

#include <QString>
#include <QStringList>

#include <array>
#include <utility>
#include <vector>

// How evenly a month's schedule is spread over the agents: what the review's Balance panel
// and `desko40-cli balance` show.
//
// A position counts as the calendar shows it: the weekly table's shifts and slots of every
// day that is no holiday. A cell belongs to each agent whose key it holds, as the exports
// read it; an empty cell and "Leave empty" are open positions, and a text that is no agent's
// key (an agent deleted since) is held by no agent.

// What one agent has in the month.
struct AgentBalance {
    int agent = 0;  // 1..gAgentCount
    int shifts = 0;
    // The time of the shifts whose time text can be read, in minutes; untimed counts the
    // others, which count in shifts but not here.
    int minutes = 0;
    int untimed = 0;
    int weekendShifts = 0;  // on weekday 0 or 6
    int notedShifts = 0;    // on a noted day
    int longestRun = 0;     // consecutive days worked
    int doubledDays = 0;    // days with two shifts or more
    int adjacentDays = 0;   // days worked right after a day worked
    // Worked on day d of the month.
    std::array<bool, kMonthDaySlots> worked{};
};

enum class Load { Even, Over, Under };

struct MonthBalance {
    std::vector<AgentBalance> agents;  // in list order
    // Adjacent days count where the rules keep an agent off them: the office has at least
    // twice the agents its busiest weekday needs, so Generate asks no question about it.
    bool adjacentCounted = false;
    int shiftSpread = 0;  // highest less lowest
    int minuteSpread = 0;
    double meanShifts = 0;
    double meanMinutes = 0;
    int openPositions = 0;
    // The texts that are no agent's key, with their positions, in the order first met.
    std::vector<std::pair<QString, int>> others;
};

MonthBalance monthBalance(const Workspace& ws);

// Over when the agent's shifts are more than one above the mean, under when more than one
// below it.
Load loadOf(const MonthBalance& balance, const AgentBalance& agent);

// The table the panel and the tool show, cell by cell: the header, then a row per agent
// (key, shifts, hours, weekend, noted, run, double, adjacent, load: "over", "under" or
// empty); adjacent days that are not counted read "-". Hours are whole or have their
// fraction, "7.5".
QStringList balanceHeader();
QStringList balanceRow(const Workspace& ws, const MonthBalance& balance, const AgentBalance& agent);
// The rows under the agents': Spread and Mean (shifts and hours), Open and Others
// (positions).
std::vector<QStringList> balanceSummary(const MonthBalance& balance);

// Hours from minutes with at most two decimals: "12", "7.5", "11.17".
QString hoursText(double minutes);
