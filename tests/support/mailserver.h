#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

// The export tests' mail server on this machine (tests/export/smtpserver.py) with the options
// given, for as long as the object lives; each message it takes is a line of FILE.
struct MailServer {
    MailServer(const QString& file, const QStringList& options);
    ~MailServer();
    MailServer(const MailServer&) = delete;
    MailServer& operator=(const MailServer&) = delete;

    QProcess process;
    int port = 0;
};
