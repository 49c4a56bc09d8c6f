#include "constraints/shifttable.h"

#include "core/model/shifttime.h"
#include "core/services/context.h"
#include "core/services/log.h"
#include "core/services/msgbox.h"
#include "persistence/scheduleformat.h"
#include "persistence/workspacefile.h"

namespace {

enum class Fault { None, Empty, Unstorable, Unreadable };

}  // namespace

QString weekdayShiftsCaption(int weekday) {
    static const QString captions[kWeekdays] = {
        QStringLiteral("&Sunday shifts"),   QStringLiteral("&Monday shifts"),
        QStringLiteral("&Tuesday shifts"),  QStringLiteral("&Wednesday shifts"),
        QStringLiteral("Thu&rsday shifts"), QStringLiteral("&Friday shifts"),
        QStringLiteral("S&aturday shifts")};
    return captions[weekday];
}

QString shiftLabel(const Workspace& ws, int weekday, int shift) {
    QString label = ws.gShiftText[weekday][shift];
    if (ws.gShiftAgents[weekday][shift] > 0) {
        label += QStringLiteral(" (x%1)").arg(ws.gShiftAgents[weekday][shift] + 1);
    }
    return label;
}

ShiftTableSnapshot takeShiftSnapshot(const Workspace& ws) {
    return {ws.gShiftCount, ws.gShiftText, ws.gShiftAgents};
}

void restoreShiftSnapshot(Workspace& ws, const ShiftTableSnapshot& snapshot) {
    ws.gShiftCount = snapshot.gSavedShiftCount;
    ws.gShiftText = snapshot.gSavedShiftText;
    ws.gShiftAgents = snapshot.gSavedShiftAgents;
}

DaySaveResult saveDayShifts(Workspace& ws, Context& ctx, int weekday, const DayShifts& day) {
    const QString dayName = ws.gDayNames[weekday];
    if (day.count == 0 &&
        msgBox(ctx.dialogs,
               QStringLiteral("If you proceed, no agents will receive shifts on ") + dayName +
                   QStringLiteral(".  Are you sure you want to continue?"),
               MsgIcon::Question, MsgButtons::YesNo, 2) != MsgAnswer::Yes) {
        return {DaySaveResult::End::Kept};
    }
    modStatus(ws, ctx, QStringLiteral("Saving shifts and times for ") + dayName);
    ws.gDirty = 1;

    std::array<QString, kEditorShifts> texts;
    for (int n = 1; n <= day.count; ++n) {
        texts[n - 1] = day.texts[n - 1].trimmed();
    }
    // The checks go in order and stop at the first fault.
    Fault fault = Fault::None;
    int faulty = 0;
    QString start;
    QString end;
    for (int n = 1; n <= day.count && fault == Fault::None; ++n) {
        const QString& text = texts[n - 1];
        fault = text.isEmpty()                             ? Fault::Empty
                : !fitsInAField(text)                      ? Fault::Unstorable
                : !modInterpretShiftTime(text, start, end) ? Fault::Unreadable
                                                           : Fault::None;
        faulty = n;
    }
    if (fault == Fault::Empty) {
        msgBox(ctx.dialogs,
               QStringLiteral("Please fill in the time for the ") + modOrdinalWord(faulty) +
                   QStringLiteral(" shift."),
               MsgIcon::Exclamation, MsgButtons::OK);
        return {DaySaveResult::End::FixShift, faulty, false};
    }
    if (fault == Fault::Unreadable) {
        const QString question =
            modWrapMessage(QStringLiteral("The time for the ") + modOrdinalWord(faulty) +
                               QStringLiteral(" shift could not be interpreted.  If you use "
                                              "non-standard notation for shift times, you may "
                                              "be unable to export the schedule to Microsoft "
                                              "Outlook or Calendar Creator."),
                           ctx.dialogs) +
            QStringLiteral("\r\n\r\n") +
            modWrapMessage(QStringLiteral("An acceptable format would be '9am-11:30am'.  Do you "
                                          "want to change the shift time?"),
                           ctx.dialogs);
        if (ctx.dialogs.messageBox(question, MsgIcon::Exclamation, MsgButtons::YesNo, 1) ==
            MsgAnswer::Yes) {
            return {DaySaveResult::End::FixShift, faulty, true};
        }
        // The shifts after it are not checked, but none may reach the file if the file
        // cannot give it back.
        for (int n = faulty + 1; n <= day.count; ++n) {
            if (!fitsInAField(texts[n - 1])) {
                fault = Fault::Unstorable;
                faulty = n;
                break;
            }
        }
    }
    // The file keeps a shift's time and its agents in one line, split at "|".
    if (fault == Fault::Unstorable) {
        msgBox(ctx.dialogs,
               QStringLiteral("The time for the ") + modOrdinalWord(faulty) +
                   QStringLiteral(" shift cannot be kept: it may not hold the character |, a "
                                  "line break or more than %1 characters.  Please change the "
                                  "shift time.")
                       .arg(kLongestField),
               MsgIcon::Exclamation, MsgButtons::OK);
        return {DaySaveResult::End::FixShift, faulty, true};
    }
    modStatus(ws, ctx,
              (fault == Fault::None ? QStringLiteral("All times could be interpreted for ")
                                    : QStringLiteral("Not all times could be interpreted for ")) +
                  dayName);

    ws.gShiftCount[weekday] = day.count;
    for (int n = 1; n <= day.count; ++n) {
        ws.gShiftText[weekday][n] = texts[n - 1];
        ws.gShiftAgents[weekday][n] = day.highestSlots[n - 1];
    }
    modSaveWorkspace(ws, ctx, QString());
    return {DaySaveResult::End::Saved};
}
