#include "persistence/scheduleformat.h"

#include "core/model/agentkeys.h"
#include "core/model/calendar.h"
#include "core/model/numbers.h"
#include "core/model/workspace.h"
#include "persistence/profilefile.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <span>

namespace {

const QString kBar = QStringLiteral("|");
const QString kTitles = QStringLiteral("Titles");
const QString kSettings = QStringLiteral("Settings");

struct TitleDefault {
    QString Workspace::*field;
    QString value;
    QString writtenKey;
};

// The defaults that loading fills in and writes back. Two of the keys written back are not
// the keys the grid's settings are read from: the file then holds a stray "Grid Font" or
// "Grid Copies" until the next full save drops it.
const std::array<TitleDefault, 8> kTitleDefaults = {{
    {&Workspace::gCalendarFont, QStringLiteral("Times New Roman"), QStringLiteral("Calendar Font")},
    {&Workspace::gGridFont, QStringLiteral("Times New Roman"), QStringLiteral("Grid Font")},
    {&Workspace::gTearsheetFont, QStringLiteral("Times New Roman"),
     QStringLiteral("Tearsheet Font")},
    {&Workspace::gCalendarCopies, QStringLiteral("1"), QStringLiteral("Calendar Copies")},
    {&Workspace::gGridCopies, QStringLiteral("1"), QStringLiteral("Grid Copies")},
    {&Workspace::gCalendarUseFirstName, QStringLiteral("0"),
     QStringLiteral("Calendar Use First Name")},
    {&Workspace::gCalendarHideTimeText, QStringLiteral("0"),
     QStringLiteral("Calendar Hide Time Text")},
    {&Workspace::gTearsheetFontsize, QStringLiteral("12"), QStringLiteral("Tearsheet Fontsize")},
}};

const QString kDefaultPrinterFormat = QStringLiteral("111000");

QString shiftSection(const Workspace& ws, int weekday) {
    return ws.gDayNames[weekday] + QStringLiteral(" Shifts");
}

// The text of the file, built line by line; every line ends with CR LF.
class Writer {
public:
    void line(const QString& text) {
        text_ += text;
        text_ += QStringLiteral("\r\n");
    }
    void row(long long key, const QString& value) {
        line(QString::number(key) + QLatin1Char('=') + value);
    }
    void section(const QString& name) { line(QLatin1Char('[') + name + QLatin1Char(']')); }
    const QString& text() const { return text_; }

private:
    QString text_;
};

QString joined(std::initializer_list<QString> fields) {
    return QStringList(fields).join(kBar);
}

void writeMonthSections(Workspace& ws, Writer& out) {
    const int days = ws.currentMonthDays();
    out.section(QStringLiteral("Holidays"));
    for (int day = 1; day <= days; ++day) {
        if (ws.gHoliday[day] == 1) {
            out.row(day, ws.gHolidayName[day]);
            ws.gHasHolidays = 1;
        }
    }
    out.line(QString());
    out.section(QStringLiteral("Noted Days"));
    for (int day = 1; day <= days; ++day) {
        if (ws.gNoted[day] == 1) {
            out.row(day, ws.gNotedText[day]);
            ws.gHasNotedDays = 1;
        }
    }
    out.line(QString());
    out.section(QStringLiteral("Vacations"));
    long long number = 0;
    for (const auto& [agent, day] : vacationRows(ws)) {
        out.row(++number, joined({QString::number(agent), QString::number(day)}));
        ws.gHasVacations = 1;
    }
    out.line(QString());
}

void writeRestrictions(Workspace& ws, Writer& out) {
    out.section(QStringLiteral("Restrictions"));
    long long number = 0;
    for (const auto& [agent, weekday, shift] : restrictionRows(ws)) {
        out.row(++number,
                joined({QString::number(agent), QString::number(weekday), QString::number(shift)}));
        ws.gHasRestrictions = 1;
    }
    out.line(QString());
}

void writeSettings(Workspace& ws, Writer& out) {
    out.section(kSettings);
    out.line(QStringLiteral("Version=") + ws.versionText());
    takePrinterFormat(ws);
    out.line(QStringLiteral("Current Month=") + QString::number(ws.gCurrentMonth));
    out.line(QStringLiteral("Current Year=") + QString::number(ws.gCurrentYear));
    out.line(QStringLiteral("Printer Format=") + ws.gPrinterFormat);
    out.line(QStringLiteral("Scheduling Engine=") + QString::number(ws.gEngine));
}

// Every position of the month, whatever its cell holds.
void writeSchedule(const Workspace& ws, Writer& out) {
    out.section(QStringLiteral("Schedule"));
    long long number = 0;
    for (int day = 1; day <= ws.currentMonthDays(); ++day) {
        const int weekday = (day + 6 + ws.gFirstWeekday) % kWeekdays;
        if (weekday < 0) {
            continue;
        }
        for (int shift = 1; shift <= std::min(ws.gShiftCount[weekday], kMaxShift); ++shift) {
            for (int slot = 0; slot <= std::min(ws.gShiftAgents[weekday][shift], kMaxSlot);
                 ++slot) {
                out.row(++number, joined({QString::number(day), QString::number(shift),
                                          QString::number(slot), ws.schedule(day, shift, slot)}));
            }
        }
    }
}

// A row of a running-number section split into its fields; fields[0] stays empty.
std::vector<QString> rowFields(const ProfileFile& file, const QString& section,
                               const QString& key) {
    std::vector<QString> fields;
    modSplitFields(modReadProfileValue(file, section, key), kBar, fields);
    return fields;
}

// The indices of a row, each a whole number within [0, limit]; nothing when any is not.
template <std::size_t N>
std::optional<std::array<int, N>> indices(const std::vector<QString>& fields,
                                          const std::array<int, N>& limits) {
    std::array<int, N> result{};
    for (std::size_t i = 0; i < N; ++i) {
        const std::optional<int> value = wholeNumber(fields[i + 1]);
        if (!value || *value < 0 || *value > limits[i]) {
            return std::nullopt;
        }
        result[i] = *value;
    }
    return result;
}

void eraseHolidaysAndNotes(Workspace& ws) {
    ws.gNotedText.fill(QString());
    ws.gNoted.fill(0);
    ws.gHolidayName.fill(QString());
    ws.gHoliday.fill(0);
}

void readAgents(Workspace& ws, const ProfileFile& file) {
    const QString section = QStringLiteral("Agents");
    std::vector<QString> keys;
    ws.gAgentCount = modReadKeyNames(file, section, keys);
    ws.redimAgents(ws.gAgentCount);
    eraseHolidaysAndNotes(ws);
    ws.gHasHolidays = ws.gHasNotedDays = ws.gHasVacations = ws.gHasRestrictions = 0;
    for (int i = 1; i <= ws.gAgentCount; ++i) {
        const std::vector<QString> fields = rowFields(file, section, QString::number(i));
        const int count = static_cast<int>(fields.size()) - 1;
        ws.gAgentLast[i] = count > 1 ? fields[1] : QString();
        ws.gAgentFirst[i] = count > 1 ? fields[2] : QString();
        ws.gAgentEmail[i] = count > 2 ? fields[3] : QString();
    }
}

// The file holds agents per shift, the model the highest slot: one less. A count that is
// no number, or 0 or less, means one agent; the table holds five at most.
void readShifts(Workspace& ws, const ProfileFile& file) {
    for (int weekday = 0; weekday < kWeekdays; ++weekday) {
        const QString section = shiftSection(ws, weekday);
        std::vector<QString> keys;
        ws.gShiftCount[weekday] = std::min(modReadKeyNames(file, section, keys), kMaxShift);
        for (int shift = 1; shift <= ws.gShiftCount[weekday]; ++shift) {
            const std::vector<QString> fields = rowFields(file, section, QString::number(shift));
            ws.gShiftText[weekday][shift] = fields[1];
            const std::optional<double> perShift =
                fields.size() > 2 ? numericValue(fields[2]) : std::nullopt;
            const int highest =
                perShift && *perShift > 0 ? roundToInt(*perShift - 1).value_or(kMaxSlot) : 0;
            ws.gShiftAgents[weekday][shift] = std::min(highest, kMaxSlot);
        }
    }
}

void readRestrictions(Workspace& ws, const ProfileFile& file) {
    const QString section = QStringLiteral("Restrictions");
    std::vector<QString> keys;
    const int count = modReadKeyNames(file, section, keys);
    for (int i = 1; i <= count; ++i) {
        const std::vector<QString> fields = rowFields(file, section, QString::number(i));
        if (fields.size() != 4) {
            continue;
        }
        if (const auto at = indices<3>(fields, {ws.gAgentCount, kWeekdays - 1, kShiftSlots - 1})) {
            ws.gRestriction[(*at)[0]][(*at)[1]][(*at)[2]] = 1;
        }
        ws.gHasRestrictions = 1;
    }
}

// Holidays and noted days are read by the key names the file holds, each a day.
int readDays(const ProfileFile& file, const QString& section, std::span<int> flags,
             DayTexts& texts) {
    std::vector<QString> keys;
    const int count = modReadKeyNames(file, section, keys);
    ProfileValues rows;
    for (int i = 1; i <= count; ++i) {
        rows.emplace_back(keys[i], modReadProfileValue(file, section, keys[i]));
    }
    return markDays(rows, flags, texts);
}

void readVacations(Workspace& ws, const ProfileFile& file) {
    const QString section = QStringLiteral("Vacations");
    std::vector<QString> keys;
    const int count = modReadKeyNames(file, section, keys);
    for (int i = 1; i <= count; ++i) {
        const std::vector<QString> fields = rowFields(file, section, keys[i]);
        if (fields.size() != 3) {
            continue;
        }
        if (const auto at = indices<2>(fields, {ws.gAgentCount, kMonthDaySlots - 1})) {
            ws.gVacation[(*at)[0]][(*at)[1]] = 1;
        }
        ws.gHasVacations = 1;
    }
}

void readTitlesAndSettings(Workspace& ws, const ProfileFile& file) {
    for (const TitleField& title : kTitleFields) {
        ws.*title.field = modReadProfileValue(file, kTitles, title.key);
    }
    ws.gSavedMonth = modReadProfileValue(file, kSettings, QStringLiteral("Current Month"));
    ws.gSavedYear = modReadProfileValue(file, kSettings, QStringLiteral("Current Year"));
    ws.gPrinterFormat = modReadProfileValue(file, kSettings, QStringLiteral("Printer Format"));
    ws.gEngine =
        engineNumber(modReadProfileValue(file, kSettings, QStringLiteral("Scheduling Engine")));
}

// The schedule is not cleared first: a cell the file does not name keeps what it held.
void readSchedule(Workspace& ws, const ProfileFile& file) {
    const QString section = QStringLiteral("Schedule");
    std::vector<QString> keys;
    const int count = modReadKeyNames(file, section, keys);
    for (int i = 1; i <= count; ++i) {
        const std::vector<QString> fields = rowFields(file, section, QString::number(i));
        if (fields.size() != 5) {
            continue;
        }
        if (const auto at = indices<3>(fields, {kScheduleDays - 1, kShiftSlots - 1, kMaxSlot})) {
            ws.schedule((*at)[0], (*at)[1], (*at)[2]) = fields[4];
        }
    }
    ws.gScheduleGenerated = 1;
}

}  // namespace

const std::array<TitleField, 16> kTitleFields = {{
    {QStringLiteral("Calendar Title"), &Workspace::gCalendarTitle},
    {QStringLiteral("Calendar Notes"), &Workspace::gCalendarNotes},
    {QStringLiteral("Calendar Font"), &Workspace::gCalendarFont},
    {QStringLiteral("Calendar Copies"), &Workspace::gCalendarCopies},
    {QStringLiteral("Calendar Use First Name"), &Workspace::gCalendarUseFirstName},
    {QStringLiteral("Calendar Hide Time Text"), &Workspace::gCalendarHideTimeText},
    {QStringLiteral("Office Grid Title"), &Workspace::gGridTitle},
    {QStringLiteral("Office Grid Notes"), &Workspace::gGridNotes},
    {QStringLiteral("Office Grid Font"), &Workspace::gGridFont},
    {QStringLiteral("Office Grid Copies"), &Workspace::gGridCopies},
    {QStringLiteral("Tearsheet Font"), &Workspace::gTearsheetFont},
    {QStringLiteral("Tearsheet Fontsize"), &Workspace::gTearsheetFontsize},
    {QStringLiteral("Email Subject"), &Workspace::gEmailSubject},
    {QStringLiteral("Email Body"), &Workspace::gEmailBody},
    {QStringLiteral("Outlook Subject"), &Workspace::gOutlookSubject},
    {QStringLiteral("Outlook Body"), &Workspace::gOutlookBody},
}};

ProfileValues applyTitleDefaults(Workspace& ws) {
    ProfileValues written;
    for (const TitleDefault& fallback : kTitleDefaults) {
        QString& value = ws.*fallback.field;
        const bool zeroSize =
            fallback.field == &Workspace::gTearsheetFontsize && value == QStringLiteral("0");
        if (value.isEmpty() || zeroSize) {
            value = fallback.value;
            written.emplace_back(fallback.writtenKey, value);
        }
    }
    return written;
}

void applySettings(Workspace& ws) {
    if (ws.gEngine < 0 || ws.gEngine > 3) {
        ws.gEngine = 0;
    }
    ws.cmbGenerateListIndex = ws.gEngine;
    if (ws.gPrinterFormat.size() != 6) {
        ws.gPrinterFormat = kDefaultPrinterFormat;
    }
    showPrinterFormat(ws);
}

int engineNumber(const QString& text) {
    return roundToInt(leadingNumber(text)).value_or(0);
}

int markDays(const ProfileValues& rows, std::span<int> flags, DayTexts& texts) {
    for (const auto& [key, text] : rows) {
        const std::optional<int> day = wholeNumber(key);
        if (day && *day >= 0 && *day < static_cast<int>(flags.size())) {
            flags[*day] = 1;
        }
        if (day && *day >= 0 && *day < kMonthDaySlots) {
            texts[*day] = text;
        }
    }
    return rows.empty() ? 0 : 1;
}

std::vector<std::array<int, 2>> vacationRows(const Workspace& ws) {
    std::vector<std::array<int, 2>> rows;
    const int days = ws.currentMonthDays();
    for (int agent = 1; agent <= ws.gAgentCount; ++agent) {
        for (int day = 1; day <= days; ++day) {
            if (ws.gVacation[agent][day] == 1) {
                rows.push_back({agent, day});
            }
        }
    }
    return rows;
}

std::vector<std::array<int, 3>> restrictionRows(const Workspace& ws) {
    std::vector<std::array<int, 3>> rows;
    for (int agent = 1; agent <= ws.gAgentCount; ++agent) {
        for (int weekday = 0; weekday < kWeekdays; ++weekday) {
            for (int shift = 0; shift < kShiftSlots; ++shift) {
                if (ws.gRestriction[agent][weekday][shift] == 1) {
                    rows.push_back({agent, weekday, shift});
                }
            }
        }
    }
    return rows;
}

std::vector<RowsNotRead> rowsNotRead(const Workspace& ws, const ProfileFile& file) {
    QStringList sections = {QStringLiteral("Agents")};
    for (int weekday = 0; weekday < kWeekdays; ++weekday) {
        sections.append(shiftSection(ws, weekday));
    }
    sections +=
        {QStringLiteral("Holidays"), QStringLiteral("Noted Days"), QStringLiteral("Vacations"),
         QStringLiteral("Restrictions"), QStringLiteral("Schedule")};
    std::vector<RowsNotRead> cut;
    for (const QString& section : sections) {
        std::vector<QString> keys;
        const int read = modReadKeyNames(file, section, keys);
        const auto held = static_cast<int>(file.keyNames(section).size());
        if (held > read) {
            cut.push_back({section, held, read});
        }
    }
    return cut;
}

QString scheduleFileText(Workspace& ws, FileKind kind) {
    ws.gHasRestrictions = ws.gHasNotedDays = ws.gHasHolidays = ws.gHasVacations = 0;
    Writer out;
    out.section(QStringLiteral("Agents"));
    for (int i = 1; i <= ws.gAgentCount; ++i) {
        out.row(i, joined({ws.gAgentLast[i], ws.gAgentFirst[i], ws.gAgentEmail[i]}));
    }
    out.line(QString());
    for (int weekday = 0; weekday < kWeekdays; ++weekday) {
        out.section(shiftSection(ws, weekday));
        for (int shift = 1; shift <= std::min(ws.gShiftCount[weekday], kMaxShift); ++shift) {
            out.row(shift, ws.gShiftText[weekday][shift] + kBar +
                               QString::number(ws.gShiftAgents[weekday][shift] + 1));
        }
        out.line(QString());
    }
    writeMonthSections(ws, out);
    writeRestrictions(ws, out);
    out.section(kTitles);
    for (const TitleField& title : kTitleFields) {
        out.line(title.key + QLatin1Char('=') + ws.*title.field);
    }
    out.line(QString());
    writeSettings(ws, out);
    if (kind == FileKind::Schedule) {
        out.line(QString());
        writeSchedule(ws, out);
    }
    return out.text();
}

ReadResult readScheduleFile(Workspace& ws, const ProfileFile& file, FileKind kind) {
    const bool scheduleFile = kind == FileKind::Schedule;
    if (scheduleFile && !modReadProfileValue(file, kSettings, QStringLiteral("Version"))
                             .startsWith(QStringLiteral("4.0."))) {
        return {true, {}};
    }
    readAgents(ws, file);
    modBuildAgentKeys(ws);
    readShifts(ws, file);
    readRestrictions(ws, file);

    ws.gHasNotedDays = ws.gHasHolidays = ws.gHasVacations = 0;
    eraseHolidaysAndNotes(ws);
    ws.gHasHolidays = readDays(file, QStringLiteral("Holidays"), ws.gHoliday, ws.gHolidayName);
    readVacations(ws, file);
    ws.gHasNotedDays = readDays(file, QStringLiteral("Noted Days"), ws.gNoted, ws.gNotedText);

    readTitlesAndSettings(ws, file);
    if (scheduleFile) {
        takeSavedMonth(ws);
    }
    ReadResult result{false, applyTitleDefaults(ws)};
    applySettings(ws);
    if (scheduleFile) {
        readSchedule(ws, file);
    }
    return result;
}

void takeSavedMonth(Workspace& ws) {
    const std::optional<int> month = wholeNumber(ws.gSavedMonth);
    if (month && *month >= 1 && *month <= 12) {
        ws.gCurrentMonth = *month;
    }
    if (const std::optional<int> year = wholeNumber(ws.gSavedYear)) {
        ws.gCurrentYear = *year;
    }
    modSetupMonth(ws);
}

QString storedText(const QString& text) {
    const qsizetype lineEnd = text.indexOf(QRegularExpression(QStringLiteral("[\\r\\n]")));
    // The reader's own rules, on a line that holds the text alone.
    const ProfileFile line(QStringLiteral("[s]\r\nk=") + text.left(lineEnd));
    return modReadProfileValue(line, QStringLiteral("s"), QStringLiteral("k"));
}

bool fitsInAField(const QString& text) {
    return !text.contains(kBar) && !text.contains(QLatin1Char('\r')) &&
           !text.contains(QLatin1Char('\n')) && text.size() <= kLongestField;
}

void takePrinterFormat(Workspace& ws) {
    ws.gPrinterFormat.clear();
    for (const int value : ws.chkPrint) {
        ws.gPrinterFormat += QString::number(value);
    }
}

void showPrinterFormat(Workspace& ws) {
    for (int i = 0; i < 6 && i < ws.gPrinterFormat.size(); ++i) {
        const int digit = ws.gPrinterFormat[i].digitValue();
        if (digit >= 0 && digit <= 2) {
            ws.chkPrint[i] = digit;
        }
    }
}
