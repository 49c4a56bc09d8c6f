#include "cli/commands.h"

#include "cli/balanceverb.h"
#include "cli/exportverb.h"
#include "cli/printverb.h"
#include "cli/session.h"
#include "core/model/calendar.h"
#include "core/model/shifttime.h"
#include "core/model/workspace.h"
#include "core/services/clock.h"
#include "core/services/context.h"
#include "core/services/dialogs.h"
#include "core/services/randomsequence.h"
#include "core/services/registrystore.h"
#include "generation/generate.h"
#include "persistence/scheduleformat.h"
#include "persistence/workspacefile.h"
#include "shell/filecommands.h"

#include <optional>

namespace {

const QString kUsage = QStringLiteral(
    "usage: desko40-cli month YEAR MONTH\n"
    "       desko40-cli interpret TEXT\n"
    "       desko40-cli resave [--working] IN OUT\n"
    "       desko40-cli keys FILE\n"
    "       desko40-cli generate IN OUT --engine smartrandom|shuffled|horizontal|mixed\n"
    "                   [--seed S] [--base B] [--working]\n"
    "       desko40-cli print IN --report calendar|grid|tearsheet|shifts|constraints --pdf OUT\n"
    "                   [--trace FILE]\n"
    "       desko40-cli export IN [--csv FILE] [--email] [--calendar] [--outbox DIR] [--ics "
    "DIR]\n"
    "       desko40-cli balance FILE [--format tsv|json]\n");

int usage(QTextStream& err) {
    err << kUsage;
    return 2;
}

std::optional<int> number(const QString& text) {
    bool ok = false;
    const int value = text.toInt(&ok);
    return ok ? std::optional<int>(value) : std::nullopt;
}

int month(const QStringList& args, QTextStream& out, QTextStream& err) {
    const std::optional<int> year = number(args.value(1));
    const std::optional<int> month = number(args.value(2));
    if (args.size() != 3 || !year || !month || *month < 1 || *month > 12) {
        return usage(err);
    }
    Workspace ws;
    modInitNameTables(ws);
    ws.gCurrentYear = *year;
    ws.gCurrentMonth = *month;
    modSetupMonth(ws);
    out << ws.gFirstWeekday << ' ' << ws.gMonthDays[*month] << ' ' << ws.gCalendarSixRows << '\n';
    return 0;
}

int interpret(const QStringList& args, QTextStream& out, QTextStream& err) {
    if (args.size() != 2) {
        return usage(err);
    }
    QString start;
    QString end;
    const bool ok = modInterpretShiftTime(args[1], start, end);
    out << (ok ? "True" : "False") << '\t' << start << '\t' << end << '\n';
    return 0;
}

// Reads a schedule file, or with asWorkingFile the file as the working file in its own
// month. False when it was refused; the refusal has been told on err.
bool read(Session& session, const QString& path, bool asWorkingFile) {
    if (!asWorkingFile) {
        return modLoadWorkspace(session.ws, session.ctx, path);
    }
    session.ws.gConfigFile = path;
    modLoadWorkspace(session.ws, session.ctx, QString());
    takeSavedMonth(session.ws);
    session.ws.gConfigFile.clear();
    return true;
}

// Opens a schedule file as the program's File Open does, or reads a working file.
bool open(Session& session, const QString& path, bool asWorkingFile) {
    return asWorkingFile ? read(session, path, true) : openSchedule(session.ws, session.ctx, path);
}

int resave(const QStringList& args, QTextStream& err, const Launch& launch) {
    const bool working = args.value(1) == QStringLiteral("--working");
    const QStringList files = args.mid(working ? 2 : 1);
    if (files.size() != 2) {
        return usage(err);
    }
    const QString& in = files[0];
    const QString& target = files[1];
    if (!readable(in)) {
        return fail(err, in, QStringLiteral("cannot be read"));
    }
    // A plain read and write of the format, with nothing of the program's opening.
    Session session(err, in, launch);
    if (!read(session, in, working)) {
        return 1;
    }
    if (working) {
        session.ws.gConfigFile = target;
    }
    if (!modSaveWorkspace(session.ws, session.ctx, working ? QString() : target)) {
        return fail(err, target, QStringLiteral("cannot be written"));
    }
    return 0;
}

int keys(const QStringList& args, QTextStream& out, QTextStream& err, const Launch& launch) {
    if (args.size() != 2) {
        return usage(err);
    }
    const QString& path = args[1];
    if (!readable(path)) {
        return fail(err, path, QStringLiteral("cannot be read"));
    }
    Session session(err, path, launch);
    if (!open(session, path, false)) {
        return 1;
    }
    const Workspace& ws = session.ws;
    for (int i = 1; i <= ws.gAgentCount; ++i) {
        out << i << '\t' << ws.gAgentKey[i] << '\t' << ws.gAgentFirstKey[i] << '\n';
    }
    return 0;
}

// The engines by the names the tool takes, in the order of the engine list.
const QStringList kEngineNames = {QStringLiteral("smartrandom"), QStringLiteral("shuffled"),
                                  QStringLiteral("horizontal"), QStringLiteral("mixed")};

struct GenerateOptions {
    QStringList files;
    int engine = -1;
    std::optional<std::uint32_t> seed;
    std::optional<int> base;
    bool working = false;
};

// The options in any order after the command; nothing when they do not make a command.
std::optional<GenerateOptions> generateOptions(const QStringList& args) {
    GenerateOptions options;
    for (qsizetype i = 1; i < args.size(); ++i) {
        const QString& arg = args[i];
        const bool hasValue = i + 1 < args.size();
        if (arg == QStringLiteral("--working")) {
            options.working = true;
        } else if (arg == QStringLiteral("--engine") && hasValue) {
            options.engine = static_cast<int>(kEngineNames.indexOf(args[++i]));
        } else if (arg == QStringLiteral("--seed") && hasValue) {
            options.seed = parseSeed(args[++i]);
            if (!options.seed) {
                return std::nullopt;
            }
        } else if (arg == QStringLiteral("--base") && hasValue) {
            options.base = number(args[++i]);
            if (!options.base) {
                return std::nullopt;
            }
        } else if (arg.startsWith(QStringLiteral("--"))) {
            return std::nullopt;
        } else {
            options.files.append(arg);
        }
    }
    const bool serial = options.engine == kEngineHorizontal || options.engine == kEngineMixed;
    if (options.files.size() != 2 || options.engine < 0 || (options.base && !serial)) {
        return std::nullopt;
    }
    return options;
}

int generate(const QStringList& args, QTextStream& err, const Launch& launch) {
    const std::optional<GenerateOptions> options = generateOptions(args);
    if (!options) {
        return usage(err);
    }
    const QString& in = options->files[0];
    const QString& target = options->files[1];
    if (!readable(in)) {
        return fail(err, in, QStringLiteral("cannot be read"));
    }
    Session session(err, in, launch);
    if (!open(session, in, options->working)) {
        return 1;
    }
    Workspace& ws = session.ws;
    if (ws.gAgentCount == 0) {
        return fail(err, in, QStringLiteral("has no agents"));
    }
    if (options->base && (*options->base < 1 || *options->base > ws.gAgentCount)) {
        return fail(err, in, QStringLiteral("has no agent ") + QString::number(*options->base));
    }
    session.ctx.random.setState(
        startingSeed(session.clock.now(), options->seed ? options->seed : launch.seed));
    if (!prepareGenerate(ws, session.ctx, options->engine)) {
        return 1;
    }
    std::optional<int> cursor;
    if (options->base) {
        cursor = *options->base - 1;
    }
    runEngine(ws, session.ctx, {}, cursor);
    // What the review form marks when it shows the result.
    ws.gScheduleGenerated = 1;
    if (!modSaveWorkspace(ws, session.ctx, target)) {
        return fail(err, target, QStringLiteral("cannot be written"));
    }
    return 0;
}

}  // namespace

int runCommand(const QStringList& args, QTextStream& out, QTextStream& err, const Launch& launch) {
    const QString command = args.value(0);
    if (command == QStringLiteral("month")) {
        return month(args, out, err);
    }
    if (command == QStringLiteral("interpret")) {
        return interpret(args, out, err);
    }
    if (command == QStringLiteral("resave")) {
        return resave(args, err, launch);
    }
    if (command == QStringLiteral("keys")) {
        return keys(args, out, err, launch);
    }
    if (command == QStringLiteral("generate")) {
        return generate(args, err, launch);
    }
    if (command == QStringLiteral("print")) {
        const std::optional<int> status = printVerb(args, err, launch);
        return status ? *status : usage(err);
    }
    if (command == QStringLiteral("export")) {
        const std::optional<int> status = exportSchedule(args, err, launch);
        return status ? *status : usage(err);
    }
    if (command == QStringLiteral("balance")) {
        const std::optional<int> status = balanceVerb(args, out, err, launch);
        return status ? *status : usage(err);
    }
    return usage(err);
}
