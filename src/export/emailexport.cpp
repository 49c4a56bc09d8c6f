#include "export/emailexport.h"

#include "core/model/workspace.h"
#include "core/services/context.h"
#include "core/services/log.h"
#include "export/exportresults.h"
#include "export/exportview.h"
#include "export/mailbody.h"
#include "export/mailsession.h"

void exportToEmail(Workspace& ws, Context& ctx, ExportView& view, MailSession& session) {
    modStatus(ws, ctx, QStringLiteral("Exporting the schedule to e-mail"));
    view.showStatus(QStringLiteral("Exporting the schedule to e-mail . . ."));
    ws.gExportResults.clear();
    // Events run before each mail, so that the window lives while a slow server answers.
    for (int agent = 1; agent <= ws.gAgentCount && ctx.events.doEvents(); ++agent) {
        const QString body = agentMailBody(ws, agent);
        if (!ws.gAgentEmail[agent].isEmpty()) {
            modSendMail(ws, ctx, session, ws.gExportResults,
                        {ws.gAgentEmail[agent], ws.gEmailSubject, body, {}});
            continue;
        }
        const QString failure = QStringLiteral("Failed to send e-mail to ") + ws.agentName(agent) +
                                QStringLiteral("  (No e-mail address entered)");
        addResult(ws.gExportResults, failure);
        modStatus(ws, ctx, failure);
    }
    offerResults(ctx, ws.gExportResults,
                 QStringLiteral("At least one agent failed to receive the e-mail message.  Would "
                                "you like to see the results?"));
}
