#include "shell/filecommands.h"

#include "core/model/agentkeys.h"
#include "core/model/monthdata.h"
#include "core/model/textrules.h"
#include "core/model/workspace.h"
#include "core/services/context.h"
#include "core/services/log.h"
#include "core/services/msgbox.h"
#include "persistence/workspacefile.h"
#include "shell/mainview.h"

#include <QFileInfo>

namespace {

const QString kOpeningStatus = QStringLiteral("Opening a desko schedule . . .");

// Both dialogs offer schedule files first, in the program's directory.
FileDialog scheduleDialog(const Workspace& ws, const QString& title, const QString& fileName) {
    FileDialog request;
    request.title = title;
    request.filter = QStringLiteral("Desko schedules (*.dko)|*.dko|All files (*.*)|*.*");
    request.filterIndex = 1;
    request.initialDir = ws.gAppPath;
    request.fileName = fileName;
    return request;
}

// The caption's tag names the file as the user gave it, capitals tidied.
QString scheduleTag(const QString& fileName) {
    return QStringLiteral(" [") + modProperCase(modBaseName(fileName)) + QLatin1Char(']');
}

// Save the changes first? A Yes saves, and whatever became of the save the command goes on;
// only Cancel stops it. What else the answer means is the caller's.
MsgAnswer offerToSave(Workspace& ws, Context& ctx, MainView& view, const QString& question,
                      MsgIcon icon) {
    const MsgAnswer answer = msgBox(ctx.dialogs, question, icon, MsgButtons::YesNoCancel);
    if (answer == MsgAnswer::Yes) {
        saveScheduleAs(ws, ctx, view);
    }
    return answer;
}

}  // namespace

void newSchedule(Workspace& ws, Context& ctx, MainView& view) {
    bool erasingSaid = true;
    if (ws.gDirty == 1) {
        const MsgAnswer answer = offerToSave(
            ws, ctx, view,
            QStringLiteral("Creating a new schedule will erase all shift constraints.  Do you "
                           "want to save the current configuration before creating a new "
                           "schedule?"),
            MsgIcon::Exclamation);
        if (answer == MsgAnswer::Cancel) {
            return;
        }
        // A No goes straight to the erasing, without its line in the log.
        erasingSaid = answer != MsgAnswer::No;
    }
    if (erasingSaid) {
        modStatus(ws, ctx, QStringLiteral("Erasing existing schedule"));
    }
    eraseMonthData(ws);
    ws.gRestriction.assign(static_cast<std::size_t>(ws.gAgentCount) + 1, ShiftTable{});
    ws.gCalendarNotes.clear();
    ws.gGridNotes.clear();
    ws.gOutlookBody.clear();
    modSaveWorkspace(ws, ctx, QString());
    ws.gHasHolidays = 0;
    ws.gHasNotedDays = 0;
    ws.gHasVacations = 0;
    ws.gScheduleGenerated = 0;
    ws.gDirty.reset();
    ws.gHasScheduleFile = 0;
    view.modLeaveBusyState();
}

void openScheduleFile(Workspace& ws, Context& ctx, MainView& view) {
    if (ws.gDirty == 1 &&
        offerToSave(ws, ctx, view,
                    QStringLiteral("Do you want to save the current configuration before "
                                   "opening a desko schedule?"),
                    MsgIcon::Question) == MsgAnswer::Cancel) {
        return;
    }
    const std::optional<QString> chosen = ctx.dialogs.openFileDialog(
        scheduleDialog(ws, QStringLiteral("Open desko schedule..."), QStringLiteral("*.dko")));
    if (chosen) {
        view.beginLongCommand(kOpeningStatus);
        openSchedule(ws, ctx, *chosen);
        view.showOpenedSchedule();
        // A refused file leaves the schedule there was, if any, to the review.
        if (ws.gScheduleGenerated == 1) {
            view.showReview();
            return;
        }
    }
    view.modLeaveBusyState();
}

void saveScheduleAs(Workspace& ws, Context& ctx, MainView& view) {
    FileDialog request = scheduleDialog(ws, QStringLiteral("Save desko schedule as..."),
                                        QString::number(ws.gCurrentYear) + QLatin1Char(' ') +
                                            ws.currentMonthName() + QStringLiteral(".dko"));
    request.promptOverwrite = true;
    const std::optional<QString> chosen = ctx.dialogs.saveFileDialog(request);
    if (!chosen) {
        view.modLeaveBusyState();
        return;
    }
    view.beginLongCommand(QStringLiteral("Saving the desko schedule . . ."));
    // The rule measures the name as the user typed it, not the folder it went into.
    QString fileName = *chosen;
    const QString typed = modBaseName(fileName);
    if (typed.size() > 3 && typed.right(4).toUpper() != QLatin1String(".DKO")) {
        fileName += QStringLiteral(".dko");
    }
    modStatus(ws, ctx, QStringLiteral("Saving desko schedule ") + modProperCase(fileName));
    // A file that cannot be written keeps its old contents, and the command ends as if it
    // had been written.
    modSaveWorkspace(ws, ctx, fileName);
    ws.gScheduleTag = scheduleTag(*chosen);
    ws.gHasScheduleFile = 1;
    ws.gSaveDone = 1;
    view.modLeaveBusyState();
    ws.gDirty = 0;
}

bool openSchedule(Workspace& ws, Context& ctx, const QString& path) {
    modStatus(ws, ctx, QStringLiteral("Opening desko schedule ") + modProperCase(path));
    const bool read = modLoadWorkspace(ws, ctx, path);
    ws.gScheduleTag = scheduleTag(path);
    ws.gHasScheduleFile = 1;
    modSaveWorkspace(ws, ctx, QString());
    modBuildAgentKeys(ws);
    modFillDayEditorCombos(ws);
    ws.gDirty = 0;
    return read;
}

void modOpenFromCommandLine(Workspace& ws, Context& ctx, MainView& view, QString& path) {
    view.beginLongCommand(kOpeningStatus);
    // Only a plain file is found here: a hidden one passed the start's search but not this.
    const QFileInfo file(path);
    if (!file.isFile() || file.isHidden()) {
        return;
    }
    modStatus(ws, ctx, QStringLiteral("Program started with command switch"));
    openSchedule(ws, ctx, path);
    view.showOpenedSchedule();
    path = QStringLiteral("0");
    view.showReview();
}
