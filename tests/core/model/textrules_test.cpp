#include "core/model/textrules.h"
#include "core/model/agentlist.h"
#include "core/model/shifttime.h"
#include "tables.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>

TEST(TextRules, AnswerAsTheTableSays) {
    const std::map<QString, std::function<QString(const QString&)>> rules = {
        {QStringLiteral("ProperCase"), modProperCase},
        {QStringLiteral("ProperCapitals"),
         [](const QString& name) {
             return hasProperCapitals(name) ? QStringLiteral("yes") : QStringLiteral("no");
         }},
        {QStringLiteral("BaseName"), modBaseName},
        {QStringLiteral("Article"), agentArticle},
        {QStringLiteral("OrdinalWord"),
         [](const QString& number) {
             int n = number.toInt();
             const QString word = modOrdinalWord(n);
             return word + QLatin1Char('|') + QString::number(n);
         }},
    };
    for (const QStringList& row : tableRows("core/model/golden/textrules.tsv")) {
        SCOPED_TRACE(row.join(QLatin1Char('\t')).toStdString());
        ASSERT_TRUE(rules.count(row[0]));
        EXPECT_EQ(rules.at(row[0])(row.value(1)), row.value(2));
    }
}
