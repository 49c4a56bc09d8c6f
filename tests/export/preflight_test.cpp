#include "export/preflight.h"

#include "core/model/workspace.h"
#include "export/exportview.h"
#include "fakes.h"
#include "offices.h"
#include "tables.h"

#include <gtest/gtest.h>

namespace {

// The box of the given name, as the user sees it: a message alone, or a head, a list and a
// tail.
QString boxText(const QString& name, const ScriptedDialogs& dialogs) {
    for (const QStringList& row : tableRows("export/golden/preflightboxes.tsv")) {
        if (row[0] != name) {
            continue;
        }
        const QStringList ends = dialogs.wrapped({row[1], row.value(3)});
        QString list;
        for (const QString& item : row.value(2).split(u'|', Qt::SkipEmptyParts)) {
            list += QStringLiteral("\r\n     ") + item;
        }
        return row.size() > 2
                   ? ends[0] + QStringLiteral("\r\n") + list + QStringLiteral("\r\n\r\n") + ends[1]
                   : ends[0];
    }
    ADD_FAILURE() << "no box " << name.toStdString();
    return {};
}

}  // namespace

// Which export boxes the pre-flight leaves ticked, what it asks in which words, and where a
// No or a cancelled file dialog stops the export before anything goes out.
TEST(ExportPreflight, AsksAndRefusesBeforeAnythingGoesOut) {
    const QString file = QStringLiteral("/x/2027 January.csv");
    for (const QStringList& row : tableRows("export/golden/preflight.tsv")) {
        SCOPED_TRACE(row.join(u' ').toStdString());
        const int withoutAddress = row[4].toInt();
        const int unreadShifts = row[5].toInt();
        TestServices s;
        Workspace ws;
        makeOffice(ws, 2027, 1, 3);
        ws.gShiftText.fill({QString(), QStringLiteral("9am-5pm")});
        ws.gShiftText[0][1] = unreadShifts >= 1 ? QStringLiteral("Closed") : ws.gShiftText[0][1];
        ws.gShiftText[6][1] = unreadShifts >= 2 ? QStringLiteral("Noon") : ws.gShiftText[6][1];
        for (int agent = withoutAddress + 1; agent <= 3; ++agent) {
            ws.gAgentEmail[agent] = QStringLiteral("a%1@example.org").arg(agent);
        }
        for (int box = 0; box < 3; ++box) {
            ws.chkPrint[3 + box] = row[0][box] == u'1';
        }
        s.ctx.env.gMapiProfile = row[2] == u"1" ? QStringLiteral("office") : QString();
        s.ctx.env.gOutlookInstalled = row[3] == u"1";
        for (const QChar answer : row[6]) {
            s.dialogs.answers.push_back(answer == u'Y' ? MsgAnswer::Yes : MsgAnswer::No);
        }
        const bool chosen = row[7] == u"1";
        s.dialogs.fileAnswers = {chosen ? std::optional(file) : std::nullopt};
        HeadlessExportView view;

        const std::optional<ExportPlan> plan = exportPreflight(ws, s.ctx, view);

        EXPECT_EQ(plan.has_value(), row.value(9) == u"1");
        QStringList expected;
        for (const QString& box : row.value(8).split(u'|', Qt::SkipEmptyParts)) {
            expected.append(boxText(box, s.dialogs));
        }
        EXPECT_EQ(s.dialogs.texts(), expected);
        EXPECT_EQ(
            QStringLiteral("%1%2%3").arg(ws.chkPrint[3]).arg(ws.chkPrint[4]).arg(ws.chkPrint[5]),
            row[1]);
        if (plan && chosen) {
            const FileDialog& asked = s.dialogs.filesShown.at(0).request;
            EXPECT_EQ(plan->creatorFile + asked.title + asked.fileName,
                      file + QStringLiteral("Export to Calendar Creator format2027 January.csv"));
            EXPECT_TRUE(asked.promptOverwrite);
        }
    }
}
