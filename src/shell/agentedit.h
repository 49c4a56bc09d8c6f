#pragma once

#include <QString>

struct Context;
struct Workspace;

// The rules of the agent list's commands: what the edit frame's OK accepts, refuses and
// asks, the delete's question, and the choice of an agent that a command needs. The array
// work is the model's; the list box and the frame are the window's.

// What the edit frame holds: the three boxes, and whether the address in the last one is one
// the mail system resolved (the window underlines it).
struct AgentEntry {
    QString first;
    QString last;
    QString email;
    bool emailResolved = false;
};

// How the edit ends: the frame stays open for typing in a box, or closes.
enum class AgentEditEnd { TypeFirstName, TypeLastName, Close };

struct AgentEditResult {
    AgentEditEnd end = AgentEditEnd::Close;
    // The boxes as the edit leaves them, with the address resolved on the way.
    AgentEntry entry;
    // The list item a change took out, and the list index where the agent's item now stands;
    // -1 where the list does not change.
    int removedItem = -1;
    int insertedItem = -1;
};

// The address the address book gives for the entry's address, or for its full name when the
// address is empty; the empty text when there is none.
QString lookUpAddress(const Workspace& ws, Context& ctx, const AgentEntry& entry);

// The frame's OK, adding (gAgentEditMode 0) or changing the agent at list index
// gAgentEditIndex (mode 1). Every OK counts as a change, also one that is refused. A
// missing name, or a Yes to the capitals question, keeps the frame open; a name already in
// the list is refused with a message and the frame closes as if the edit were done, and so
// is an agent more than the file can keep.
AgentEditResult commitAgentEdit(Workspace& ws, Context& ctx, const AgentEntry& entry);

// A command on one agent needs a list item chosen; without one the user is told so.
bool agentChosen(Context& ctx, int listIndex);

// Asks whether to delete the agent at the list index and deletes it on Yes; false when
// nothing was deleted.
bool deleteAgentAsked(Workspace& ws, Context& ctx, int listIndex);
