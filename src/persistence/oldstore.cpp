#include "persistence/oldstore.h"

#include "core/model/numbers.h"
#include "core/model/workspace.h"
#include "core/services/context.h"
#include "core/services/registryapi.h"
#include "persistence/scheduleformat.h"

#include <algorithm>

namespace {

// The old store's keys, below the base key.
class OldStore {
public:
    OldStore(const Workspace& ws, Context& ctx) : base_(ws.gRegistryBase), ctx_(ctx) {}

    QString get(const QString& key, const QString& name) const {
        return modRegGetValue(ctx_.registry, kHkeyLocalMachine, base_ + key, name);
    }
    void set(const QString& key, const QString& name, const QString& value) {
        modRegSetValue(ctx_.registry, kHkeyLocalMachine, base_ + key, name, value);
    }
    QStringList keys(const QString& key) const {
        return modRegListKeys(ctx_.registry, kHkeyLocalMachine, base_ + key);
    }
    RegValues values(const QString& key) const {
        return modRegListValues(ctx_.registry, kHkeyLocalMachine, base_ + key);
    }

private:
    QString base_;
    Context& ctx_;
};

const QString kTitles = QStringLiteral("\\Titles");
const QString kSettings = QStringLiteral("\\Settings");

// A key named by a number below another key.
QString below(const QString& key, int number) {
    return key + QLatin1Char('\\') + QString::number(number);
}

// A name that is one of the indices 0..highest.
std::optional<int> indexIn(const QString& name, int highest) {
    const std::optional<int> index = wholeNumber(name);
    return index && *index >= 0 && *index <= highest ? index : std::nullopt;
}

void readAgents(Workspace& ws, const OldStore& store) {
    const QString agents = QStringLiteral("\\Agents");
    ws.gAgentCount = static_cast<int>(store.keys(agents).size());
    ws.redimAgents(ws.gAgentCount);
    for (int i = 1; i <= ws.gAgentCount; ++i) {
        ws.gAgentLast[i] = store.get(below(agents, i), QStringLiteral("Last Name"));
        ws.gAgentFirst[i] = store.get(below(agents, i), QStringLiteral("First Name"));
        ws.gAgentEmail[i] = store.get(below(agents, i), QStringLiteral("Email"));
    }
}

// The store holds agents per shift, the model the highest slot, one less: but a count of 0
// or less stays as it is. The table holds five agents at most.
void readShifts(Workspace& ws, const OldStore& store) {
    for (int weekday = 0; weekday < kWeekdays; ++weekday) {
        const QString day = below(QStringLiteral("\\Shifts"), weekday);
        const int count = static_cast<int>(store.keys(day).size());
        ws.gShiftCount[weekday] = std::min(count, kMaxShift);
        for (int shift = 1; shift <= ws.gShiftCount[weekday]; ++shift) {
            ws.gShiftText[weekday][shift] = store.get(below(day, shift), QStringLiteral("Text"));
            const double perShift =
                leadingNumber(store.get(below(day, shift), QStringLiteral("Per Shift")));
            if (const std::optional<int> highest =
                    roundToInt(perShift > 0 ? perShift - 1 : perShift)) {
                ws.gShiftAgents[weekday][shift] = std::min(*highest, kMaxSlot);
            }
        }
    }
}

// An agent's restricted weekdays are subkeys, the shifts their values, each named by number.
void readRestrictions(Workspace& ws, const OldStore& store) {
    for (int agent = 1; agent <= ws.gAgentCount; ++agent) {
        const QString restrictions = below(QStringLiteral("\\Restrictions"), agent);
        for (const QString& weekdayName : store.keys(restrictions)) {
            for (const auto& value : store.values(restrictions + QLatin1Char('\\') + weekdayName)) {
                const std::optional<int> weekday = indexIn(weekdayName, kWeekdays - 1);
                const std::optional<int> shift = indexIn(value.first, kShiftSlots - 1);
                if (weekday && shift) {
                    ws.gRestriction[agent][*weekday][*shift] = 1;
                }
                ws.gHasRestrictions = 1;
            }
        }
    }
}

void readVacations(Workspace& ws, const OldStore& store) {
    for (int agent = 1; agent <= ws.gAgentCount; ++agent) {
        for (const auto& value : store.values(below(QStringLiteral("\\Vacations"), agent))) {
            if (const std::optional<int> day = indexIn(value.first, kMonthDaySlots - 1)) {
                ws.gVacation[agent][*day] = 1;
            }
            ws.gHasVacations = 1;
        }
    }
}

void readTitles(Workspace& ws, const OldStore& store) {
    for (const TitleField& title : kTitleFields) {
        ws.*title.field = store.get(kTitles, title.key);
    }
}

// The defaults are written back to the store, under the keys that loading a file writes
// them back with.
void applyDefaults(Workspace& ws, OldStore& store) {
    for (const auto& [key, value] : applyTitleDefaults(ws)) {
        store.set(kTitles, key, value);
    }
    applySettings(ws);
}

}  // namespace

void readOldStore(Workspace& ws, Context& ctx) {
    OldStore store(ws, ctx);
    readAgents(ws, store);
    readShifts(ws, store);
    readRestrictions(ws, store);
    readTitles(ws, store);
    ws.gPrinterFormat = store.get(kSettings, QStringLiteral("Printer Format"));
    ws.gEngine = engineNumber(store.get(kSettings, QStringLiteral("Scheduling Engine")));
    applyDefaults(ws, store);

    ws.gVacation.assign(ws.gAgentCount + 1, DayFlags{});
    ws.gHasNotedDays = ws.gHasHolidays = ws.gHasVacations = 0;
    ws.gNotedText.fill(QString());
    ws.gNoted.fill(0);
    ws.gHolidayName.fill(QString());
    ws.gHoliday.fill(0);
    ws.gHasHolidays =
        markDays(store.values(QStringLiteral("\\Holidays")), ws.gHoliday, ws.gHolidayName);
    readVacations(ws, store);
    ws.gHasNotedDays =
        markDays(store.values(QStringLiteral("\\Noted Days")), ws.gNoted, ws.gNotedText);
    readTitles(ws, store);
    ws.gSavedMonth = store.get(kSettings, QStringLiteral("Current Month"));
    applyDefaults(ws, store);
}
