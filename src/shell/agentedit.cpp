#include "shell/agentedit.h"

#include "core/model/agentlist.h"
#include "core/model/workspace.h"
#include "core/services/context.h"
#include "core/services/log.h"
#include "core/services/msgbox.h"
#include "export/resolvename.h"
#include "persistence/rowlimit.h"

namespace {

QString fullName(const QString& first, const QString& last) {
    return first + QLatin1Char(' ') + last;
}

// The agent's names as the messages and the log write them, with their article.
QString listedAgent(const Workspace& ws, int agent) {
    const auto at = static_cast<std::size_t>(agent);
    return agentArticle(ws.gAgentFirst[at]) + QLatin1Char(' ') +
           fullName(ws.gAgentFirst[at], ws.gAgentLast[at]);
}

bool missingName(Context& ctx, const AgentEntry& entry, AgentEditResult& result) {
    if (!entry.first.isEmpty() && !entry.last.isEmpty()) {
        return false;
    }
    msgBox(ctx.dialogs, QStringLiteral("Please enter the first and last name for this agent."),
           MsgIcon::Exclamation, MsgButtons::OK);
    result.end = entry.first.isEmpty() ? AgentEditEnd::TypeFirstName : AgentEditEnd::TypeLastName;
    return true;
}

// A No keeps the name as typed.
bool correctsCapitals(Context& ctx, const AgentEntry& entry, AgentEditResult& result) {
    const bool firstProper = hasProperCapitals(entry.first);
    if ((firstProper && hasProperCapitals(entry.last)) ||
        msgBox(ctx.dialogs,
               QStringLiteral("For more professional printed reports, only the first letter of "
                              "each name should be capitalized.  Would you like to correct the "
                              "name now?"),
               MsgIcon::Question, MsgButtons::YesNo) != MsgAnswer::Yes) {
        return false;
    }
    result.end = firstProper ? AgentEditEnd::TypeLastName : AgentEditEnd::TypeFirstName;
    return true;
}

void refuseDuplicate(Context& ctx, const QString& opening, const QString& agent) {
    msgBox(ctx.dialogs, opening + agent + QStringLiteral(".  Please enter a different name."),
           MsgIcon::Exclamation, MsgButtons::OK);
}

void change(Workspace& ws, Context& ctx, const AgentEntry& entry, AgentEditResult& result) {
    modStatus(ws, ctx,
              QStringLiteral("Editing ") + fullName(entry.first, entry.last) +
                  QStringLiteral(" in the agent list"));
    if (missingName(ctx, entry, result)) {
        return;
    }
    const int selected = ws.gAgentEditIndex;
    // The agent's own row is no duplicate of itself.
    if (const int duplicate = findAgentNamed(ws, entry.last, entry.first, selected + 1)) {
        const QString agent = listedAgent(ws, duplicate);
        refuseDuplicate(ctx, QStringLiteral("The agent list already contains "), agent);
        modStatus(ws, ctx, QStringLiteral("Agent list already contains ") + agent);
        return;
    }
    if (correctsCapitals(ctx, entry, result)) {
        return;
    }
    result.removedItem = selected;
    result.insertedItem = changeAgent(ws, selected, entry.last, entry.first, entry.email);
    ws.gAgentEditIndex = static_cast<qint16>(result.insertedItem);
}

void add(Workspace& ws, Context& ctx, const AgentEntry& entry, AgentEditResult& result) {
    if (!roomForRows(ctx, RowSection::Agents, ws.gAgentCount + 1) ||
        missingName(ctx, entry, result)) {
        return;
    }
    modStatus(ws, ctx,
              QStringLiteral("Adding ") + fullName(entry.first, entry.last) +
                  QStringLiteral(" to the agent list"));
    if (const int duplicate = findAgentNamed(ws, entry.last, entry.first)) {
        const auto at = static_cast<std::size_t>(duplicate);
        refuseDuplicate(ctx, QStringLiteral("The list already contains "),
                        listedAgent(ws, duplicate));
        // This log line always says "a", whatever the name.
        modStatus(ws, ctx,
                  QStringLiteral("Agent list already contains a ") +
                      fullName(ws.gAgentFirst[at], ws.gAgentLast[at]));
        return;
    }
    if (correctsCapitals(ctx, entry, result)) {
        return;
    }
    result.insertedItem = addAgent(ws, entry.last, entry.first, entry.email);
    ws.gAgentEditIndex = static_cast<qint16>(result.insertedItem);
}

}  // namespace

QString lookUpAddress(const Workspace& ws, Context& ctx, const AgentEntry& entry) {
    return modResolveName(ws, ctx,
                          entry.email.isEmpty() ? fullName(entry.first, entry.last) : entry.email);
}

AgentEditResult commitAgentEdit(Workspace& ws, Context& ctx, const AgentEntry& entry) {
    ws.gDirty = 1;
    AgentEditResult result;
    result.entry = entry;
    if (!entry.emailResolved && !entry.email.isEmpty()) {
        if (const QString address = modResolveName(ws, ctx, entry.email); !address.isEmpty()) {
            result.entry.email = address;
            result.entry.emailResolved = true;
        }
    }
    if (ws.gAgentEditMode == 1) {
        change(ws, ctx, result.entry, result);
    } else if (ws.gAgentEditMode == 0) {
        add(ws, ctx, result.entry, result);
    }
    return result;
}

bool agentChosen(Context& ctx, int listIndex) {
    if (listIndex >= 0) {
        return true;
    }
    msgBox(ctx.dialogs, QStringLiteral("Please select an agent from the agent list."),
           MsgIcon::Exclamation, MsgButtons::OK);
    return false;
}

bool deleteAgentAsked(Workspace& ws, Context& ctx, int listIndex) {
    if (listIndex < 0 || listIndex >= ws.gAgentCount) {
        return false;
    }
    const auto agent = static_cast<std::size_t>(listIndex) + 1;
    const QString names = fullName(ws.gAgentFirst[agent], ws.gAgentLast[agent]);
    if (msgBox(ctx.dialogs,
               QStringLiteral("Deleting an agent will erase any vacations and shift "
                              "restrictions.  Are you sure you want to delete ") +
                   names + QLatin1Char('?'),
               MsgIcon::Question, MsgButtons::YesNo, 2) != MsgAnswer::Yes) {
        return false;
    }
    modStatus(ws, ctx, QStringLiteral("Deleting ") + names);
    ws.gDirty = 1;
    ws.gAgentEditIndex = static_cast<qint16>(listIndex);
    deleteAgent(ws, listIndex);
    if (listIndex <= ws.gAgentCount) {
        ws.gSelectedAgent = listIndex;
    }
    return true;
}
