#include "export/exportresults.h"

#include "core/services/context.h"
#include "core/services/msgbox.h"
#include "export/mailtransport.h"

void addResult(QString& results, const QString& line) {
    results += QStringLiteral("\r\n") + line;
}

bool addResultOnce(QString& results, const QString& key, const QString& line) {
    if (results.contains(key, Qt::CaseInsensitive)) {
        return false;
    }
    addResult(results, line);
    return true;
}

QString failureBracket(const SendFailure& failure) {
    return failure.description.isEmpty()
               ? QStringLiteral("  (error ") + QString::number(failure.number) + QLatin1Char(')')
               : QStringLiteral("  (") + failure.description + QLatin1Char(')');
}

void offerResults(Context& ctx, const QString& results, const QString& question) {
    if (results.isEmpty() || ctx.events.ending() ||
        msgBox(ctx.dialogs, question, MsgIcon::Exclamation, MsgButtons::YesNo, 1) !=
            MsgAnswer::Yes) {
        return;
    }
    msgBox(ctx.dialogs, results, MsgIcon::Information, MsgButtons::OK);
}
