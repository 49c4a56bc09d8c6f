#include "persistence/rowlimit.h"

#include "core/model/workspace.h"
#include "core/services/context.h"
#include "core/services/msgbox.h"
#include "persistence/profileapi.h"
#include "persistence/scheduleformat.h"

int sectionRows(const Workspace& ws, RowSection section) {
    switch (section) {
        case RowSection::Agents:
            return ws.gAgentCount;
        case RowSection::Vacations:
            return static_cast<int>(vacationRows(ws).size());
        case RowSection::Restrictions:
            return static_cast<int>(restrictionRows(ws).size());
    }
    return 0;
}

bool readsBackWhole(const Workspace& ws) {
    for (const RowSection section :
         {RowSection::Agents, RowSection::Vacations, RowSection::Restrictions}) {
        if (sectionRows(ws, section) > kMostRows) {
            return false;
        }
    }
    return true;
}

bool roomForRows(Context& ctx, RowSection section, int rows) {
    if (rows <= kMostRows) {
        return true;
    }
    const QString most = QString::number(kMostRows);
    const QString text =
        section == RowSection::Agents
            ? QStringLiteral("The agent list can hold no more than ") + most +
                  QStringLiteral(
                      " agents, as many as the configuration file can keep.  To add "
                      "an agent, first delete one who no longer works in the office.")
        : section == RowSection::Vacations
            ? QStringLiteral("The month can hold no more than ") + most +
                  QStringLiteral(
                      " vacation days for all agents together, as many as the "
                      "configuration file can keep.  To add these, first remove "
                      "vacation days that are no longer needed.")
            : QStringLiteral("The agents can have no more than ") + most +
                  QStringLiteral(
                      " shift restrictions together, as many as the configuration "
                      "file can keep.  To add these, first remove shift restrictions "
                      "that are no longer needed.");
    msgBox(ctx.dialogs, text, MsgIcon::Exclamation, MsgButtons::OK);
    return false;
}
