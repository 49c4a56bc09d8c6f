#include "persistence/profilefile.h"
#include "fakes.h"
#include "persistence/profileapi.h"

#include <gtest/gtest.h>

// How values are read (blanks, quotes, capitals, the first of a name, lines outside a
// section) is the golden file persistence/golden/read/profile-rules.dko.

TEST(ProfileFile, SetValueChangesOneLineAndKeepsTheRest) {
    struct Case {
        const char* what;
        QString before;
        const char* section;
        const char* key;
        QString after;
    };
    const QString text = QStringLiteral("[A]\r\nx=1\r\n\r\n[B]\r\ny=2\r\n");
    const Case cases[] = {
        {"replaced in place", text, "a", "X", QStringLiteral("[A]\r\nX=new\r\n\r\n[B]\r\ny=2\r\n")},
        {"added after the section's last key", text, "A", "z",
         QStringLiteral("[A]\r\nx=1\r\nz=new\r\n\r\n[B]\r\ny=2\r\n")},
        {"added to an empty section", QStringLiteral("[A]\r\n[B]\r\n"), "A", "z",
         QStringLiteral("[A]\r\nz=new\r\n[B]\r\n")},
        {"a new section at the end", text, "Titles", "Grid Font",
         QStringLiteral("[A]\r\nx=1\r\n\r\n[B]\r\ny=2\r\n[Titles]\r\nGrid Font=new\r\n")},
        {"a new file", QString(), "Titles", "Grid Font",
         QStringLiteral("[Titles]\r\nGrid Font=new\r\n")},
        {"lines a Windows editor left with LF only", QStringLiteral("[A]\nx=1\n; note\n"), "A", "x",
         QStringLiteral("[A]\r\nx=new\r\n; note\r\n")},
    };
    for (const Case& c : cases) {
        ProfileFile file(c.before);
        file.setValue(QString::fromUtf8(c.section), QString::fromUtf8(c.key),
                      QStringLiteral("new"));
        EXPECT_EQ(file.text(), c.after) << c.what;
        EXPECT_EQ(file.value(QString::fromUtf8(c.section), QString::fromUtf8(c.key)),
                  QStringLiteral("new"))
            << c.what;
    }
}

TEST(ProfileApi, KeyNamesAndValuesPassThroughTheirBuffers) {
    QString text = QStringLiteral("[Agents]\r\n");
    for (int i = 1; i <= 3000; ++i) {
        text += QString::number(i) + QStringLiteral("=x\r\n");
    }
    text += QStringLiteral("[Titles]\r\nLong=") + QString(2000, QLatin1Char('v')) +
            QStringLiteral("\r\nNull=before") + QChar(0) + QStringLiteral("after\r\n");
    const ProfileFile file(text);

    std::vector<QString> keys;
    // "1".."9" take 2 characters with their nulls, then 3, 4 and 5: the names up to 1859 fit
    // whole into 8191 characters, before the list's closing null.
    ASSERT_EQ(modReadKeyNames(file, QStringLiteral("Agents"), keys), 1859);
    EXPECT_EQ(keys[1], QStringLiteral("1"));
    EXPECT_EQ(keys[1859], QStringLiteral("1859"));
    EXPECT_EQ(modReadKeyNames(file, QStringLiteral("Missing"), keys), 0);
    EXPECT_EQ(keys.size(), 1U);

    EXPECT_EQ(modReadProfileValue(file, QStringLiteral("Titles"), QStringLiteral("Long")),
              QString(1023, QLatin1Char('v')));
    EXPECT_EQ(modReadProfileValue(file, QStringLiteral("Titles"), QStringLiteral("Null")),
              QStringLiteral("before"));
}

TEST(ProfileApi, SplitFields) {
    struct Case {
        const char* text;
        const char* delimiter;
        int count;
        QStringList fields;
    };
    const Case cases[] = {
        {"Smith|John|js@example.org",
         "|",
         3,
         {QStringLiteral("Smith"), QStringLiteral("John"), QStringLiteral("js@example.org")}},
        {"no delimiter", "|", 1, {QStringLiteral("no delimiter")}},
        {"", "|", 1, {QString()}},
        {"trailing|", "|", 2, {QStringLiteral("trailing"), QString()}},
        {"|", "|", 2, {QString(), QString()}},
        {"a|***empty***|b|c", "|", 2, {QStringLiteral("a"), QStringLiteral("b|c")}},
        {"a|b", "", 0, {}},
        {"a--b--c", "--", 3, {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")}},
    };
    for (const Case& c : cases) {
        std::vector<QString> fields;
        EXPECT_EQ(modSplitFields(QString::fromUtf8(c.text), QString::fromUtf8(c.delimiter), fields),
                  c.count)
            << c.text;
        ASSERT_EQ(fields.size(), static_cast<std::size_t>(c.fields.size()) + 1) << c.text;
        EXPECT_TRUE(fields[0].isEmpty());
        for (qsizetype i = 0; i < c.fields.size(); ++i) {
            EXPECT_EQ(fields[static_cast<std::size_t>(i) + 1], c.fields[i]) << c.text;
        }
    }

    QString text = QStringLiteral("one|two");
    EXPECT_EQ(modNextField(text, QStringLiteral("|")), QStringLiteral("one"));
    EXPECT_EQ(text, QStringLiteral("two"));
    EXPECT_EQ(modNextField(text, QStringLiteral("|")), QStringLiteral("***empty***"));
    EXPECT_EQ(text, QStringLiteral("two"));
}
