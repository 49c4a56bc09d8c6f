#include "tables.h"

#include <QFile>

#include <gtest/gtest.h>

namespace {

QString unescaped(const QString& field) {
    QString text;
    for (qsizetype i = 0; i < field.size(); ++i) {
        const QChar c = field[i];
        if (c != QLatin1Char('\\') || i + 1 == field.size()) {
            text += c;
            continue;
        }
        const QChar next = field[++i];
        text += next == QLatin1Char('n')   ? QChar(QLatin1Char('\n'))
                : next == QLatin1Char('r') ? QChar(QLatin1Char('\r'))
                : next == QLatin1Char('t') ? QChar(QLatin1Char('\t'))
                                           : next;
    }
    return text;
}

}  // namespace

QString testFileText(const char* path) {
    QFile file(QStringLiteral(DESKO_TESTS_DIR "/") + QString::fromUtf8(path));
    if (!file.open(QIODevice::ReadOnly)) {
        ADD_FAILURE() << "the file " << path << " cannot be read";
        return {};
    }
    return QString::fromUtf8(file.readAll());
}

QList<QStringList> tableRows(const char* path) {
    QList<QStringList> rows;
    for (const QString& line : testFileText(path).split(QLatin1Char('\n'))) {
        if (line.isEmpty() || line.startsWith(QLatin1Char('#'))) {
            continue;
        }
        QStringList row;
        for (const QString& field : line.split(QLatin1Char('\t'))) {
            row.append(unescaped(field));
        }
        rows.append(row);
    }
    if (rows.isEmpty()) {
        ADD_FAILURE() << "the table " << path << " has no rows";
    }
    return rows;
}
