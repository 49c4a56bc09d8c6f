#pragma once

#include "export/calendarevents.h"
#include "export/shifttimes.h"

#include <QDate>
#include <QString>

#include <vector>

struct Workspace;

// A shift that an agent works on a day of the month.
struct AgentShift {
    int agent = 0;
    QDate date;
    int weekday = 0;
    int shift = 0;
};

// The agent's shifts by date and shift, each once however many of its slots the agent fills.
// A cell that says "Leave empty", or is empty, is no one's.
std::vector<AgentShift> agentShifts(const Workspace& ws, int agent);

// The same for the same agent, date and shift, so that a second export updates the
// appointments of the first instead of doubling them. Two agents who share an address keep
// appointments of their own.
QString appointmentId(const Workspace& ws, int agent, const QDate& date, int shift);

// The shift as an event in the agent's own calendar, as its meeting request has it: the
// calendar export's subject and text, at the shift's times; a shift whose time cannot be read
// is an event of the whole day with the shift's text as its title. No one organises or
// attends it yet.
CalendarEvent shiftEvent(const Workspace& ws, const AgentShift& shift, const ShiftTimes& times);
