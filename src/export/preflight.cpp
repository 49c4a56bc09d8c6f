#include "export/preflight.h"

#include "core/model/workspace.h"
#include "core/services/context.h"
#include "core/services/msgbox.h"
#include "export/exportview.h"
#include "export/shifttimes.h"

namespace {

const QString kLineBreak = QStringLiteral("\r\n");

// The words of the question about agents without an address, for one agent and for several.
struct AddressWords {
    const char* oneHead;
    const char* oneTail;
    const char* manyHead;
    const char* manyTail;
};

const AddressWords kEmailWords = {
    "The following agent does not have an e-mail address configured:",
    "The schedule will not be sent to this agent.  Are you sure you want to continue?",
    "The following agents do not have e-mail addresses configured:",
    "The schedule will not be sent to these agents.  Are you sure you want to continue?",
};

const AddressWords kOutlookWords = {
    "The following agent does not have an Outlook e-mail address configured:",
    "Appointments will not be created for this agent.  Are you sure you want to continue?",
    "The following agents do not have Outlook e-mail addresses configured:",
    "Appointments will not be created for these agents.  Are you sure you want to continue?",
};

// What a channel loses by the shifts it cannot read.
const char* const kOutlookShifts =
    " could not be interpreted.  Non-standard shift notations will prevent Outlook "
    "appointments from being created.  An acceptable format would be '9am-11:30am'.";
const char* const kCreatorShifts =
    " could not be interpreted.  Non-standard shift notations will prevent Calendar Creator "
    "entries from being created.  An acceptable format would be '9am-11:30am'.";

// A list between its head and its tail, each item on a line of its own; No, the default,
// stops the export.
bool listAccepted(Context& ctx, const QString& head, const QString& list, const QString& tail) {
    const QString text =
        modWrapMessage(head, ctx.dialogs) + kLineBreak + list + kLineBreak + kLineBreak + tail;
    return ctx.dialogs.messageBox(text, MsgIcon::Exclamation, MsgButtons::YesNo, 2) ==
           MsgAnswer::Yes;
}

bool agentsWithoutAddressAccepted(const Workspace& ws, Context& ctx, const AddressWords& words) {
    QString list;
    int count = 0;
    for (int agent = 1; agent <= ws.gAgentCount; ++agent) {
        if (ws.gAgentEmail[agent].isEmpty()) {
            list += kLineBreak + QStringLiteral("     ") + ws.agentName(agent);
            ++count;
        }
    }
    if (count == 0) {
        return true;
    }
    const bool one = count == 1;
    return listAccepted(
        ctx, QString::fromUtf8(one ? words.oneHead : words.manyHead), list,
        modWrapMessage(QString::fromUtf8(one ? words.oneTail : words.manyTail), ctx.dialogs));
}

// Every shift of the weekly table counts, whether the month uses it or not.
bool unreadShiftsAccepted(const Workspace& ws, Context& ctx, const char* loss) {
    const WeeklyShiftTimes times = interpretWeeklyShifts(ws);
    QString list;
    int count = 0;
    for (int weekday = 0; weekday < kWeekdays; ++weekday) {
        for (int shift = 1; shift <= shiftsOn(ws, weekday); ++shift) {
            if (!times[weekday][shift].ok) {
                list += kLineBreak + QStringLiteral("     ") + ws.gDayNames[weekday] +
                        QStringLiteral(", ") + ws.gShiftText[weekday][shift];
                ++count;
            }
        }
    }
    if (count == 0) {
        return true;
    }
    const QString head = QStringLiteral("The following shift") +
                         (count != 1 ? QStringLiteral("s") : QString()) + QString::fromUtf8(loss);
    return listAccepted(ctx, head, list, QStringLiteral("Are you sure you want to continue?"));
}

void untick(Workspace& ws, ExportView& view, int box) {
    ws.chkPrint[box] = 0;
    view.untickExportBox(box);
}

// The file dialog of the Calendar Creator export; nothing when cancelled.
std::optional<QString> chooseCreatorFile(const Workspace& ws, Context& ctx) {
    FileDialog request;
    request.title = QStringLiteral("Export to Calendar Creator format");
    request.filter =
        QStringLiteral("Calendar Creator export files (*.csv)|*.csv|All files (*.*)|*.*");
    request.filterIndex = 1;
    request.initialDir = ws.gAppPath;
    request.fileName = QString::number(ws.gCurrentYear) + QLatin1Char(' ') + ws.currentMonthName() +
                       QStringLiteral(".csv");
    request.promptOverwrite = true;
    return ctx.dialogs.saveFileDialog(request);
}

}  // namespace

bool exportBoxTicked(const Workspace& ws, int box) {
    return ws.chkPrint[box] == 1;
}

std::optional<ExportPlan> exportPreflight(Workspace& ws, Context& ctx, ExportView& view) {
    if (!exportBoxTicked(ws, kEmailBox) && !exportBoxTicked(ws, kOutlookBox) &&
        !exportBoxTicked(ws, kCreatorBox)) {
        return std::nullopt;
    }
    if (exportBoxTicked(ws, kEmailBox) && ctx.env.gMapiProfile.isEmpty()) {
        msgBox(ctx.dialogs,
               QStringLiteral("No MAPI profiles could be found on this system.  Please check your "
                              "e-mail configuration and retry."),
               MsgIcon::Exclamation, MsgButtons::OK);
        untick(ws, view, kEmailBox);
    }
    if (exportBoxTicked(ws, kOutlookBox) && !ctx.env.gOutlookInstalled) {
        msgBox(ctx.dialogs,
               QStringLiteral("Microsoft Outlook could not be found on this system.  Please "
                              "check your configuration and retry."),
               MsgIcon::Exclamation, MsgButtons::OK);
        untick(ws, view, kOutlookBox);
    }
    if (exportBoxTicked(ws, kEmailBox) && !agentsWithoutAddressAccepted(ws, ctx, kEmailWords)) {
        return std::nullopt;
    }
    if (exportBoxTicked(ws, kOutlookBox) &&
        (!agentsWithoutAddressAccepted(ws, ctx, kOutlookWords) ||
         !unreadShiftsAccepted(ws, ctx, kOutlookShifts))) {
        return std::nullopt;
    }
    ExportPlan plan;
    if (exportBoxTicked(ws, kCreatorBox)) {
        const std::optional<QString> file = chooseCreatorFile(ws, ctx);
        if (!file || !unreadShiftsAccepted(ws, ctx, kCreatorShifts)) {
            return std::nullopt;
        }
        plan.creatorFile = *file;
    }
    return plan;
}
