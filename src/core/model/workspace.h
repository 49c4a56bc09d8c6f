#pragma once

#include <QString>

#include <array>
#include <optional>
#include <vector>

// The one in-memory model of the month being scheduled. Arrays keep their logical index
// ranges: index 0 exists and stays unset unless a rule says otherwise, so loops read
// 1..n as the rules do. Unset numbers read as 0 and unset texts as empty, which is what
// every default below gives.

inline constexpr int kWeekdays = 7;    // 0 Sunday .. 6 Saturday
inline constexpr int kShiftSlots = 7;  // shift 0 unused, 1..6
inline constexpr int kMaxShift = 6;
inline constexpr int kMaxSlot = 4;         // slots 0..4; the day editor offers 0..3
inline constexpr int kScheduleDays = 39;   // days 0..38; 1..31 carry data
inline constexpr int kMonthDaySlots = 32;  // days 0..31
inline constexpr int kHolidaySlots = 38;   // gHoliday runs 0..37

using ShiftTable = std::array<std::array<int, kShiftSlots>, kWeekdays>;
using ShiftTextTable = std::array<std::array<QString, kShiftSlots>, kWeekdays>;
using DayFlags = std::array<int, kMonthDaySlots>;
using DayTexts = std::array<QString, kMonthDaySlots>;

// The index of a schedule cell in the flat table: day + 39 * (shift + 7 * slot).
constexpr int scheduleIndex(int day, int shift, int slot) {
    return day + kScheduleDays * (shift + kShiftSlots * slot);
}
inline constexpr int kScheduleCells = scheduleIndex(0, 0, kMaxSlot + 1);

constexpr bool scheduleInRange(long long day, long long shift, long long slot) {
    return day >= 0 && day < kScheduleDays && shift >= 0 && shift < kShiftSlots && slot >= 0 &&
           slot <= kMaxSlot;
}

struct Workspace {
    // Agents, 1..gAgentCount; all agent arrays are sized gAgentCount + 1 together.
    int gAgentCount = 0;
    std::vector<QString> gAgentLast = std::vector<QString>(1);
    std::vector<QString> gAgentFirst = std::vector<QString>(1);
    std::vector<QString> gAgentEmail = std::vector<QString>(1);
    std::vector<QString> gAgentKey = std::vector<QString>(1);
    std::vector<QString> gAgentFirstKey = std::vector<QString>(1);

    // Weekly shift table.
    std::array<int, kWeekdays> gShiftCount{};
    ShiftTextTable gShiftText{};
    ShiftTable gShiftAgents{};  // highest slot number: agents per shift less one

    // Month data.
    int gCurrentMonth = 0;
    int gCurrentYear = 0;
    int gFirstWeekday = 0;
    int gCalendarSixRows = 0;
    std::array<int, kHolidaySlots> gHoliday{};
    DayTexts gHolidayName{};
    DayFlags gNoted{};
    DayTexts gNotedText{};
    std::vector<DayFlags> gVacation = std::vector<DayFlags>(1);         // [agent][day]
    std::vector<ShiftTable> gRestriction = std::vector<ShiftTable>(1);  // [agent][weekday][shift]

    // Constraint summary flags.
    int gHasHolidays = 0;
    int gHasNotedDays = 0;
    int gHasVacations = 0;
    int gHasRestrictions = 0;

    // Generated schedule, one flat table addressed by scheduleIndex().
    std::vector<QString> gSchedule = std::vector<QString>(kScheduleCells);
    int gScheduleGenerated = 0;

    // Report titles and texts.
    QString gCalendarTitle;
    QString gCalendarNotes;
    QString gCalendarFont;
    QString gCalendarCopies;
    QString gCalendarUseFirstName;
    QString gCalendarHideTimeText;
    QString gGridTitle;
    QString gGridNotes;
    QString gGridFont;
    QString gGridCopies;
    QString gTearsheetFont;
    QString gTearsheetFontsize;
    QString gEmailSubject;
    QString gEmailBody;
    QString gOutlookSubject;
    QString gOutlookBody;

    // Settings.
    QString gPrinterFormat;
    int gEngine = 0;

    // The values the main window shows in its six print boxes and its engine list. Loading
    // sets them and saving reads them; the window mirrors them while it exists.
    std::array<int, 6> chkPrint{};
    int cmbGenerateListIndex = 0;

    // Name tables, filled by modInitNameTables.
    std::array<QString, kWeekdays> gDayNames{};
    std::array<QString, 13> gMonthNames{};
    std::array<int, 13> gMonthDays{};
    std::array<int, 13> gMonthOffset{};

    // Session state, never saved.
    std::optional<int> gDirty;  // unset, 0 or 1: unset means no schedule file in use
    QString gScheduleTag;
    int gHasScheduleFile = 0;
    int gSaveDone = 0;
    QString gSavedMonth;
    QString gSavedYear;
    QString gAppPath;
    QString gConfigFile;
    QString gLogFile;
    QString gRegistryBase;
    int gVersionMajor = 0;
    int gVersionMinor = 0;
    int gVersionRevision = 0;
    bool gNoErrorTrap = false;
    int gAgentEditMode = 0;
    qint16 gAgentEditIndex = 0;
    std::optional<int> gSelectedAgent;
    int gFocusAddButton = 0;
    int gScrollValue = 0;
    int gDayPickerMode = 0;  // 0 holidays, 1 an agent's vacation days, 2 noted days
    int gDayPickerAgent = 0;
    int gRestrictionAgent = 0;
    int gEditDay = 0;  // the weekday the shift editor edits; the day the day picker names

    // Generation and review, never saved.
    double gAgentRatio = 0;       // agents / positions of the busiest weekday, at the last generate
    int gCalendarAgentIndex = 0;  // the review's agent list index last rebuilt for
    int gBaseAgent = 0;           // a serial engine's cursor on entry
    int gInitialAgent = 0;        // the review's agent list index handed to an engine
    int gSelectedDay = 0;         // the day last clicked in the review

    // Printing and export, never saved.
    std::vector<QString> gPrinterFonts;  // the printer's font names, filled at start-up
    QString gExportResults;              // failure lines of the running export channel

    QString& schedule(int day, int shift, int slot) {
        return gSchedule[scheduleIndex(day, shift, slot)];
    }
    const QString& schedule(int day, int shift, int slot) const {
        return gSchedule[scheduleIndex(day, shift, slot)];
    }

    // The weekday of a day of the month, 0 Sunday .. 6 Saturday; day 0, the day before the
    // 1st, has one too.
    int weekdayOf(int day) const { return ((day + 6 + gFirstWeekday) % 7 + 7) % 7; }
    // Days and name of the current month; 0 and empty while the month is outside 1..12.
    int currentMonthDays() const;
    QString currentMonthName() const;
    // The current month's name and its year, "January 2027".
    QString currentMonthAndYear() const;
    // Whether the number is one of the agents 1..gAgentCount.
    bool hasAgent(int agent) const { return agent >= 1 && agent <= gAgentCount; }
    // The agent's first and last name with a blank between; for no agent, the blank alone.
    QString agentName(int agent) const;
    // The program's version as files and the log show it, "4.0.10".
    QString versionText() const;
    // Resizes every agent array to agents 0..count, clearing vacations and restrictions.
    void redimAgents(int count);
};
