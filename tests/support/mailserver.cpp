#include "mailserver.h"

#include <QFile>

#include <gtest/gtest.h>

MailServer::MailServer(const QString& file, const QStringList& options) {
    QFile::remove(file);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QStringLiteral("/usr/bin/python3"),
                  QStringList{QStringLiteral(DESKO_SMTP_SERVER), file} + options);
    EXPECT_TRUE(process.waitForReadyRead(30000));
    port = process.readLine().trimmed().toInt();
}

MailServer::~MailServer() {
    process.closeWriteChannel();
    process.waitForFinished(10000);
}
