#include "core/services/textfile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

TEST(TextFile, ReadsUtf8OrWindowsTextAndWritesUtf8) {
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("names.ini"));
    struct Case {
        QByteArray bytes;
        QString text;
    };
    const Case cases[] = {
        {QByteArray("M\xc3\xbcller \xe2\x82\xac"), QStringLiteral("M\u00fcller \u20ac")},
        {QByteArray("\xef\xbb\xbfwith mark"), QStringLiteral("with mark")},
        {QByteArray("M\xfcller \x80 \x9c \x81"),
         QStringLiteral("M\u00fcller \u20ac \u0153 \u0081")},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(decodeText(c.bytes), c.text);
    }
    EXPECT_FALSE(readTextFile(dir.filePath(QStringLiteral("missing"))).has_value());
    EXPECT_FALSE(readTextFile(dir.path()).has_value());

    // Written in UTF-8, with no temporary file left beside it.
    ASSERT_TRUE(writeTextFile(path, QStringLiteral("Z\u00fcrich\r\n")));
    QFile written(path);
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    EXPECT_EQ(written.readAll(), QByteArray("Z\xc3\xbcrich\r\n"));
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files), QStringList({QStringLiteral("names.ini")}));
}
