#include "persistence/profilefile.h"
#include "fakes.h"
#include "persistence/profileapi.h"
#include "tables.h"

#include <gtest/gtest.h>

// How values are read (blanks, quotes, capitals, the first of a name, lines outside a
// section) is the golden file persistence/golden/read/profile-rules.dko.

TEST(ProfileFile, SetValueChangesOneLineAndKeepsTheRest) {
    for (const QStringList& row : tableRows("persistence/golden/setvalue.tsv")) {
        SCOPED_TRACE(row[0].toStdString());
        ProfileFile file(row[1]);
        file.setValue(row[2], row[3], QStringLiteral("new"));
        EXPECT_EQ(file.text(), row[4]);
        EXPECT_EQ(file.value(row[2], row[3]), QStringLiteral("new"));
    }
}

// A missing section has no names; a value ends at a null. Where the buffers cut a long list of
// names and a long value is the hostile files' test.
TEST(ProfileApi, KeyNamesAndValuesPassThroughTheirBuffers) {
    const ProfileFile file(QStringLiteral("[Titles]\r\nNull=before") + QChar(0) +
                           QStringLiteral("after\r\n"));
    std::vector<QString> keys(3);
    EXPECT_EQ(modReadKeyNames(file, QStringLiteral("Missing"), keys), 0);
    EXPECT_EQ(keys.size(), 1U);
    EXPECT_EQ(modReadProfileValue(file, QStringLiteral("Titles"), QStringLiteral("Null")),
              QStringLiteral("before"));
}

TEST(ProfileApi, SplitFields) {
    for (const QStringList& row : tableRows("persistence/golden/splitfields.tsv")) {
        SCOPED_TRACE(row[0].toStdString());
        std::vector<QString> fields;
        EXPECT_EQ(modSplitFields(row[0], row[1], fields), row[2].toInt());
        ASSERT_FALSE(fields.empty());
        EXPECT_TRUE(fields[0].isEmpty());
        EXPECT_EQ(QStringList(fields.begin() + 1, fields.end()), row.mid(3));
    }

    QString text = QStringLiteral("one|two");
    EXPECT_EQ(modNextField(text, QStringLiteral("|")), QStringLiteral("one"));
    EXPECT_EQ(text, QStringLiteral("two"));
    EXPECT_EQ(modNextField(text, QStringLiteral("|")), QStringLiteral("***empty***"));
    EXPECT_EQ(text, QStringLiteral("two"));
}
