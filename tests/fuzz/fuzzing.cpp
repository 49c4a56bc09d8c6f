#include "fuzzing.h"

#include "recordingprinters.h"

#include "constraints/allconstraints.h"
#include "constraints/daypicker.h"
#include "core/model/calendar.h"
#include "core/model/daycaption.h"
#include "core/model/session.h"
#include "core/services/mailaccounts.h"
#include "export/calendarfiles.h"
#include "export/exportcommand.h"
#include "export/exportview.h"
#include "export/mailsession.h"
#include "generation/balance.h"
#include "generation/generate.h"
#include "generation/positionwalk.h"
#include "generation/review.h"
#include "printing/printcommand.h"
#include "printing/printview.h"
#include "shell/filecommands.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <memory>

QByteArray inputBytes(const std::uint8_t* data, std::size_t size) {
    return QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
}

void broken(const char* promise) {
    std::fprintf(stderr, "Broken promise: %s\n", promise);
    std::abort();
}

QString scratchPath(const QString& name) {
    // In memory where the machine has a folder there: a save waits for the disk otherwise.
    static const QString memory = QStringLiteral("/dev/shm");
    static const QTemporaryDir folder((QFileInfo(memory).isWritable() ? memory : QDir::tempPath()) +
                                      QStringLiteral("/desko-fuzz-XXXXXX"));
    return folder.filePath(name);
}

QString scratchFile(const QString& name, const QByteArray& bytes) {
    const QString path = scratchPath(name);
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) ||
        file.write(bytes) != bytes.size()) {
        broken("the scratch folder takes a file");
    }
    return path;
}

QDateTime StillClock::now() const {
    return QDateTime(QDate(2027, 3, 21), QTime(9, 14, 3));
}

MsgAnswer YesDialogs::messageBox(const QString&, MsgIcon, MsgButtons buttons, int) {
    return buttons == MsgButtons::YesNo || buttons == MsgButtons::YesNoCancel ? MsgAnswer::Yes
                                                                              : MsgAnswer::OK;
}

HeadlessRun::HeadlessRun() {
    modInitNameTables(ws);
    modInitSession(ws, scratchPath(QString()));
    ws.gLogFile.clear();
    ws.gConfigFile.clear();
    ws.gCurrentYear = 2027;
    ws.gCurrentMonth = 1;
    modSetupMonth(ws);
    ctx.random.setState(4242);
}

namespace {

// The road's mail account, on this machine; its messages stay in memory.
class MemoryTransport final : public MailTransport {
public:
    explicit MemoryTransport(int& sent) : sent_(sent) {}
    std::optional<SendFailure> send(const QByteArray&, const QString&, const QString&) override {
        ++sent_;
        return std::nullopt;
    }

private:
    int& sent_;
};

// The road's printer draws nothing and keeps no trace: it measures by rule and counts the
// documents that have something on them.
class RuledPrinters final : public Printers {
public:
    RuledSurface device;
    QStringList deviceNames() const override { return {device.DeviceName()}; }
    Surface& printer() override { return device; }
    void setPrinter(int) override {}
    void setDocumentTitle(const QString&) override {}
};

void printEverything(HeadlessRun& run) {
    Workspace& ws = run.ws;
    ws.chkPrint = {1, 1, 1, 0, 0, 0};
    NoPrintView view;
    printSchedule(ws, run.ctx, view);
    printShiftTable(ws, run.ctx);
    printConstraintLists(
        ws, run.ctx,
        {vacationLines(ws), restrictionLines(ws), holidayLines(ws), notedDayLines(ws)});
}

// The calendar files: one for each agent and the office's, named for a file, the office's
// with every agent's events.
void checkCalendarFiles(const Workspace& ws, const QDateTime& now) {
    const std::vector<CalendarFile> files = calendarFiles(ws, now);
    require(files.size() == static_cast<std::size_t>(ws.gAgentCount) + 1,
            "a calendar file for each agent and the office's");
    const QByteArray event = "\r\nBEGIN:VEVENT\r\n";
    qsizetype agentEvents = 0;
    for (const CalendarFile& file : files) {
        require(file.name.endsWith(QStringLiteral(".ics")) && !file.name.contains(QLatin1Char('/')),
                "a calendar file's name is a file's");
        agentEvents += &file != &files.back() ? file.text.count(event) : 0;
    }
    require(files.back().text.count(event) == agentEvents,
            "the office's calendar holds every agent's events");
}

void exportEverything(HeadlessRun& run, int& sent) {
    checkCalendarFiles(run.ws, run.clock.now());
    run.ws.chkPrint = {0, 0, 0, 1, 1, 1};
    // The Calendar Creator file is made in memory; its folder is missing, so it stays there.
    run.dialogs.fileAnswer = scratchPath(QStringLiteral("missing/road.csv"));
    MailSession session([&sent](const MailAccount&, const QString&) {
        return std::make_unique<MemoryTransport>(sent);
    });
    HeadlessExportView view;
    cmdExport(run.ws, run.ctx, view, session);
}

// The balance counts each position of a working day once: for the agents whose key it holds,
// as open, or for a text that is no agent's key.
void checkBalance(const Workspace& ws) {
    const MonthBalance balance = monthBalance(ws);
    int counted = balance.openPositions;
    for (const auto& [text, positions] : balance.others) {
        counted += positions;
    }
    for (const AgentBalance& agent : balance.agents) {
        counted += agent.shifts;
    }
    int positions = 0;
    for (int day = 1; day <= ws.currentMonthDays(); ++day) {
        if (ws.gHoliday[day] != 1) {
            forEachPosition(ws, day, ShiftOrder::Upward, [&](int, int) { ++positions; });
        }
    }
    const QSet<QString> keys(ws.gAgentKey.begin() + 1, ws.gAgentKey.end());
    require(keys.size() < ws.gAgentCount || counted == positions,
            "the balance counts each position once");
}

// What the review with its balance, the day editor and the day pickers read of the month:
// each day's cell, each day's lists, and the picks and proposed names of the three pickers.
void lookOver(HeadlessRun& run) {
    Workspace& ws = run.ws;
    checkBalance(ws);
    for (int day = 1; day <= ws.currentMonthDays(); ++day) {
        dayCaption(ws, day);
        // The day editor opened on the day and closed with OK.
        DayLists lists;
        for (int shift = 1; shift <= kDayEditorShifts; ++shift) {
            for (int slot = 0; slot < kDayEditorSlots; ++slot) {
                lists[shift - 1][slot] = ws.schedule(day, shift, slot);
            }
        }
        storeDay(ws, day, lists);
    }
    for (int mode = 0; mode <= 2; ++mode) {
        ws.gDayPickerMode = mode;
        ws.gDayPickerAgent = ws.gAgentCount;
        pickedDays(ws);
        for (int day = 1; day <= ws.currentMonthDays(); ++day) {
            ws.gEditDay = day;
            proposedDayName(ws);
        }
    }
}

// The positions of the month's working days whose cell holds no agent's key.
int unfilledPositions(const Workspace& ws) {
    const QSet<QString> keys(ws.gAgentKey.begin() + 1, ws.gAgentKey.end());
    int unfilled = 0;
    for (int day = 1; day <= ws.currentMonthDays(); ++day) {
        const int w = ws.weekdayOf(day);
        for (int shift = 1; ws.gHoliday[day] != 1 && shift <= ws.gShiftCount[w]; ++shift) {
            for (int slot = 0; slot <= ws.gShiftAgents[w][shift]; ++slot) {
                unfilled += keys.contains(ws.schedule(day, shift, slot)) ? 0 : 1;
            }
        }
    }
    return unfilled;
}

}  // namespace

RoadResult travelWholeRoad(const QString& path) {
    HeadlessRun run;
    static const QString mailConfig = scratchFile(
        QStringLiteral("road.msmtprc"), "account road\nhost localhost\nfrom desk@example.org\n");
    run.ctx.launch.mailConfig = mailConfig;
    readMailFacts(run.ctx.env, run.ctx.launch.mailConfig);
    RuledPrinters printers;
    run.ctx.printers = &printers;

    RoadResult result;
    result.opened = openSchedule(run.ws, run.ctx, path);
    if (!result.opened) {
        return result;
    }
    const Workspace opened = run.ws;
    result.year = opened.gCurrentYear;
    result.month = opened.gCurrentMonth;
    lookOver(run);
    printEverything(run);
    exportEverything(run, result.messages);
    // The Generate button is off while there are no agents. The cells an engine writes are
    // agents' keys, which the file's cells already are, so the last engine's schedule alone
    // is printed and exported again.
    for (int engine = 0; engine < 4 && opened.gAgentCount > 0; ++engine) {
        run.ws = opened;
        if (!prepareGenerate(run.ws, run.ctx, engine)) {
            continue;
        }
        runEngine(run.ws, run.ctx);
        ++result.schedulesGenerated;
        result.unfilledPositions += unfilledPositions(run.ws);
        if (engine == kEngineHorizontal || engine == kEngineMixed) {
            rerunFromAgent(run.ws, run.ctx, engine, run.ws.gAgentCount - 1);
        }
        lookOver(run);
    }
    if (result.schedulesGenerated > 0) {
        printEverything(run);
        exportEverything(run, result.messages);
    }
    result.documents = printers.device.documents;
    return result;
}
