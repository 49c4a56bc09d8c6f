#pragma once

#include <QString>

struct Workspace;

// Agents have no identity but their place in the name-sorted agent list: agent i is list
// item i - 1. Adding, changing and deleting an agent therefore move every parallel array by
// hand (names, addresses, vacations, restrictions), so that they keep following the list.
// The keys are not touched here; the list's update rebuilds them.

// The list item of an agent: last name, comma, blank, first name.
QString agentListItem(const QString& last, const QString& first);

// Where a sorted list puts item among agents 1..gAgentCount: the list index (from 0) after
// every agent whose item sorts before it or equal to it. Case is ignored, as a sorted list
// box ignores it.
int agentListPosition(const Workspace& ws, const QString& item);

// The first agent other than except whose last and first names equal the given ones, case
// ignored; 0 when there is none.
int findAgentNamed(const Workspace& ws, const QString& last, const QString& first, int except = 0);

// Whether a name already has the capitals that printed reports want.
bool hasProperCapitals(const QString& name);

// The article before a first name in a message: "an" before a vowel A, E, I, O or U, "a"
// before anything else, a Y included.
QString agentArticle(const QString& first);

// Adds an agent where the sorted list puts it and returns its list index. Every array grows
// by one row; the rows after it move down by one. Vacations move only over the current
// month's days, and those days are cleared in the new row: a flag on a day past the month's
// end stays where it was. Restrictions move over every weekday and shifts 1..6.
int addAgent(Workspace& ws, const QString& last, const QString& first, const QString& email);

// Gives the agent at list index listIndex new names and address, and moves it to where its
// new name sorts, taking all of its vacation days 1..31 and its restrictions with it.
// Returns its new list index. The arrays keep their size.
int changeAgent(Workspace& ws, int listIndex, const QString& last, const QString& first,
                const QString& email);

// Removes the agent at list index listIndex; the rows after it move up. Vacations move over
// the current month's days, and only when the month has vacations at all; restrictions,
// only when there are restrictions. Every array shrinks to the new count.
void deleteAgent(Workspace& ws, int listIndex);
