// New, Open and Save As. There is no plain Save: every save asks for a name, and the file in
// use is remembered only as the tag in the caption. The working file is kept up on its own;
// Save As never writes it. Save As tells the commands that offer it on the way (New, Open
// and the two roads out) whether it completed, by gSaveDone.

#include "core/forms/formkit.h"
#include "core/model/agentkeys.h"
#include "core/model/monthdata.h"
#include "core/model/textrules.h"
#include "core/model/workspace.h"
#include "core/services/context.h"
#include "core/services/dialogs.h"
#include "core/services/log.h"
#include "core/services/msgbox.h"
#include "persistence/workspacefile.h"
#include "shell/forms/frmMain.h"
#include "shell/startmonth.h"

#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>

namespace {

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

}  // namespace

void frmMain::connectFileCommands() {
    connect(mnuFile, &QMenu::aboutToShow, this, [this] { mnuFile_Click(); });
    connect(mnuFNew, &QAction::triggered, this, [this] { mnuFNew_Click(); });
    connect(mnuFOpen, &QAction::triggered, this, [this] { mnuFOpen_Click(); });
    connect(mnuFSaveAs, &QAction::triggered, this, [this] { mnuFSaveAs_Click(); });
}

// Until a file was opened or saved, or something changed, there is nothing worth saving.
void frmMain::mnuFile_Click() {
    mnuFSaveAs->setEnabled(ws_.gDirty.has_value());
}

// A new schedule keeps the agents, the weekly shift table, fonts, copies, the print boxes and
// the month, and the caption goes on naming the last file. A Save As cancelled after Yes
// does not stop the erasing.
void frmMain::mnuFNew_Click() {
    bool erasingSaid = true;
    if (ws_.gDirty == 1) {
        const MsgAnswer answer =
            msgBox(ctx_.dialogs,
                   QStringLiteral("Creating a new schedule will erase all shift "
                                  "constraints.  Do you want to save the current "
                                  "configuration before creating a new schedule?"),
                   MsgIcon::Exclamation, MsgButtons::YesNoCancel);
        if (answer == MsgAnswer::Cancel) {
            return;
        }
        if (answer == MsgAnswer::Yes) {
            mnuFSaveAs_Click();
        } else {
            // A No goes straight to the erasing, without its line in the log.
            erasingSaid = false;
        }
    }
    if (erasingSaid) {
        modStatus(ws_, ctx_, QStringLiteral("Erasing existing schedule"));
    }
    eraseMonthData(ws_);
    ws_.gRestriction.assign(static_cast<std::size_t>(ws_.gAgentCount) + 1, ShiftTable{});
    ws_.gCalendarNotes.clear();
    ws_.gGridNotes.clear();
    ws_.gOutlookBody.clear();
    modSaveWorkspace(ws_, ctx_, QString());
    ws_.gHasHolidays = 0;
    ws_.gHasNotedDays = 0;
    ws_.gHasVacations = 0;
    ws_.gScheduleGenerated = 0;
    ws_.gDirty.reset();
    ws_.gHasScheduleFile = 0;
    modLeaveBusyState();
}

// A file of another version is refused while it is read, and the command is not told: the
// caption then names the refused file over the old workspace, which counts as saved.
void frmMain::mnuFOpen_Click() {
    if (ws_.gDirty == 1) {
        const MsgAnswer answer =
            msgBox(ctx_.dialogs,
                   QStringLiteral("Do you want to save the current configuration before "
                                  "opening a desko schedule?"),
                   MsgIcon::Question, MsgButtons::YesNoCancel);
        if (answer == MsgAnswer::Cancel) {
            return;
        }
        if (answer == MsgAnswer::Yes) {
            mnuFSaveAs_Click();
        }
    }
    showNormalPointer();
    const std::optional<QString> chosen = ctx_.dialogs.openFileDialog(
        scheduleDialog(ws_, QStringLiteral("Open desko schedule..."), QStringLiteral("*.dko")));
    if (chosen) {
        const QString& fileName = *chosen;
        beginLongCommand(QStringLiteral("Opening a desko schedule . . ."));
        modStatus(ws_, ctx_, QStringLiteral("Opening desko schedule ") + modProperCase(fileName));
        modLoadWorkspace(ws_, ctx_, fileName);
        showPrintAndEngine();
        ws_.gScheduleTag = scheduleTag(fileName);
        ws_.gHasScheduleFile = 1;
        modSaveWorkspace(ws_, ctx_, QString());
        modBuildAgentKeys(ws_);
        modFillAgentList();
        modFillDayEditorCombos(ws_);
        ws_.gDirty = 0;
        if (ws_.gScheduleGenerated == 1) {
            // The review form takes over and brings the window back to life when it closes.
            showWholeCalendar();
            showNormalPointer();
            return;
        }
    }
    modLeaveBusyState();
    doEvents();
    showNormalPointer();
}

// The dialog offers the month's own name. A name the user gives without the extension gets
// it, unless it is too short to hold one; the caption shows the name as it was given.
void frmMain::mnuFSaveAs_Click() {
    FileDialog request = scheduleDialog(ws_, QStringLiteral("Save desko schedule as..."),
                                        QString::number(ws_.gCurrentYear) + QLatin1Char(' ') +
                                            ws_.currentMonthName() + QStringLiteral(".dko"));
    request.promptOverwrite = true;
    const std::optional<QString> chosen = ctx_.dialogs.saveFileDialog(request);
    if (!chosen) {
        // Neither gSaveDone nor gDirty changes: the caller sees that nothing was saved.
        modLeaveBusyState();
        doEvents();
        return;
    }
    beginLongCommand(QStringLiteral("Saving the desko schedule . . ."));
    QString fileName = *chosen;
    if (fileName.size() > 3 && fileName.right(4).toUpper() != QLatin1String(".DKO")) {
        fileName += QStringLiteral(".dko");
    }
    modStatus(ws_, ctx_, QStringLiteral("Saving desko schedule ") + modProperCase(fileName));
    // A file that cannot be written keeps its old contents and the command ends as if it
    // had been written.
    modSaveWorkspace(ws_, ctx_, fileName);
    ws_.gScheduleTag = scheduleTag(*chosen);
    ws_.gHasScheduleFile = 1;
    ws_.gSaveDone = 1;
    modLeaveBusyState();
    doEvents();
    ws_.gDirty = 0;
}
