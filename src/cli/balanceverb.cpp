#include "cli/balanceverb.h"

#include "cli/session.h"
#include "generation/balance.h"
#include "shell/filecommands.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

namespace {

QString tsv(const Workspace& ws, const MonthBalance& balance) {
    QString text = balanceHeader().join(QLatin1Char('\t')) + QLatin1Char('\n');
    for (const AgentBalance& agent : balance.agents) {
        text += balanceRow(ws, balance, agent).join(QLatin1Char('\t')) + QLatin1Char('\n');
    }
    for (const QStringList& row : balanceSummary(balance)) {
        text += row.join(QLatin1Char('\t')) + QLatin1Char('\n');
    }
    return text;
}

// Two decimals are as many as the table shows.
double rounded(double value) {
    return std::round(value * 100) / 100;
}

double hours(double minutes) {
    return rounded(minutes / 60);
}

QString json(const Workspace& ws, const MonthBalance& balance) {
    static const QStringList loads = {QStringLiteral("even"), QStringLiteral("over"),
                                      QStringLiteral("under")};
    QJsonArray agents;
    for (const AgentBalance& agent : balance.agents) {
        agents.append(QJsonObject{
            {QStringLiteral("agent"), agent.agent},
            {QStringLiteral("key"), ws.gAgentKey[agent.agent]},
            {QStringLiteral("name"), ws.agentName(agent.agent)},
            {QStringLiteral("shifts"), agent.shifts},
            {QStringLiteral("hours"), hours(agent.minutes)},
            {QStringLiteral("untimed"), agent.untimed},
            {QStringLiteral("weekend"), agent.weekendShifts},
            {QStringLiteral("noted"), agent.notedShifts},
            {QStringLiteral("run"), agent.longestRun},
            {QStringLiteral("double"), agent.doubledDays},
            {QStringLiteral("adjacent"),
             balance.adjacentCounted ? QJsonValue(agent.adjacentDays) : QJsonValue()},
            {QStringLiteral("load"), loads[static_cast<int>(loadOf(balance, agent))]},
        });
    }
    QJsonObject others;
    for (const auto& [text, positions] : balance.others) {
        others.insert(text, positions);
    }
    const QJsonObject whole{
        {QStringLiteral("month"), ws.currentMonthAndYear()},
        {QStringLiteral("agents"), agents},
        {QStringLiteral("spread"),
         QJsonObject{{QStringLiteral("shifts"), balance.shiftSpread},
                     {QStringLiteral("hours"), hours(balance.minuteSpread)}}},
        {QStringLiteral("mean"),
         QJsonObject{{QStringLiteral("shifts"), rounded(balance.meanShifts)},
                     {QStringLiteral("hours"), hours(balance.meanMinutes)}}},
        {QStringLiteral("open"), balance.openPositions},
        {QStringLiteral("others"), others},
    };
    return QString::fromUtf8(QJsonDocument(whole).toJson(QJsonDocument::Indented));
}

}  // namespace

std::optional<int> balanceVerb(const QStringList& args, QTextStream& out, QTextStream& err,
                               const Launch& launch) {
    QString path;
    QString format = QStringLiteral("tsv");
    for (qsizetype i = 1; i < args.size(); ++i) {
        if (args[i] == QStringLiteral("--format") && i + 1 < args.size()) {
            format = args[++i];
        } else if (args[i].startsWith(QStringLiteral("--")) || !path.isEmpty()) {
            return std::nullopt;
        } else {
            path = args[i];
        }
    }
    if (path.isEmpty() || (format != QStringLiteral("tsv") && format != QStringLiteral("json"))) {
        return std::nullopt;
    }
    if (!readable(path)) {
        return fail(err, path, QStringLiteral("cannot be read"));
    }
    Session session(err, path, launch);
    if (!openSchedule(session.ws, session.ctx, path)) {
        return 1;
    }
    const MonthBalance balance = monthBalance(session.ws);
    out << (format == QStringLiteral("json") ? json(session.ws, balance)
                                             : tsv(session.ws, balance));
    return 0;
}
