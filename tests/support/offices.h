#pragma once

#include "core/model/workspace.h"

#include <QString>

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

class QTemporaryDir;

// Small offices written by hand for the tests.

// Agents named by (last, first) pairs, in list order; their keys are built.
void setAgents(Workspace& ws, std::initializer_list<std::pair<const char*, const char*>> names);

// A month with agents 1..agents whose keys are "Agent001", "Agent002" … and first names
// "Ann1", "Ann2" …, and a weekly table of one shift of one agent every day. Given a home,
// the log goes there.
void makeOffice(Workspace& ws, int year, int month, int agents, const QString& home = QString());

// Sends the log to a directory that does not exist, where its lines are lost quietly.
void loseLogLines(Workspace& ws, const QTemporaryDir& home);

// The log as written, CR LF and all.
std::string logText(const Workspace& ws);

// The same number of shifts, each of the same number of agents, on every weekday, or on
// Saturdays and Sundays a number of their own.
void setTable(Workspace& ws, int shifts, int agentsPerShift, int weekendShifts = -1);

// The weekly table from Sunday on: for each weekday the highest slot of each of its shifts.
void setShifts(Workspace& ws, std::initializer_list<std::vector<int>> highestSlots);

// The agents in turn over every position of the month, from the first agent on.
void dealInTurn(Workspace& ws);

// A text of its own in every cell, for the engines to write over or leave alone.
void fillWithOldSchedule(Workspace& ws);

// The agent whose key a cell holds; 0 for a cell that holds none.
int agentIn(const Workspace& ws, int day, int shift, int slot);
