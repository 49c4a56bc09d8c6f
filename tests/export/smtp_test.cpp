// The export through the headless tool to a real mail server on this machine: Debian's
// aiosmtpd, started by tests/export/smtpserver.py, which reads each message as a mail reader
// would and each calendar request with python3-icalendar.

#include "fakes.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

// The server for as long as the object lives; what it received, as the script wrote it.
class MailServer {
public:
    MailServer(const QString& folder, const QStringList& options)
        : file_(folder + QStringLiteral("/received.jsonl")) {
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process_.start(QStringLiteral("/usr/bin/python3"),
                       QStringList{QStringLiteral(DESKO_SMTP_SERVER), file_} + options);
        if (!process_.waitForReadyRead(30000)) {
            ADD_FAILURE() << "the mail server did not start";
        }
        port = process_.readLine().trimmed().toInt();
    }
    ~MailServer() {
        process_.closeWriteChannel();
        if (!process_.waitForFinished(10000)) {
            process_.kill();
            process_.waitForFinished();
        }
    }
    QList<QJsonObject> received() const {
        QList<QJsonObject> messages;
        QFile file(file_);
        if (file.open(QIODevice::ReadOnly)) {
            for (const QByteArray& line : file.readAll().split('\n')) {
                if (!line.isEmpty()) {
                    messages.append(QJsonDocument::fromJson(line).object());
                }
            }
        }
        return messages;
    }
    int port = 0;

private:
    QString file_;
    QProcess process_;
};

struct ToolRun {
    int code = -1;
    QString err;
};

class MailExport : public ::testing::Test {
protected:
    // Exports a copy of the example office under the account "office", its lines given,
    // with the times of Central Europe; the mail's subject is the one given, if any.
    ToolRun exportOffice(const QString& account, const QStringList& options,
                         const QString& subject = QString()) {
        const QString config = work.filePath(QStringLiteral("msmtprc"));
        QFile::remove(config);
        if (!account.isNull()) {
            QFile file(config);
            EXPECT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(QStringLiteral("account office\nhost 127.0.0.1\nfrom desk@example.org\n%1")
                           .arg(account)
                           .toUtf8());
        }
        const QString office = work.filePath(QStringLiteral("office.dko"));
        QFile::remove(office);
        QString text = fileText(QStringLiteral(DESKO_EXAMPLES_DIR "/office/Example Office.dko"));
        if (!subject.isEmpty()) {
            text.replace(QStringLiteral("Email Subject=January 2027 Desko Schedule"),
                         QStringLiteral("Email Subject=") + subject);
        }
        QFile copy(office);
        EXPECT_TRUE(copy.open(QIODevice::WriteOnly));
        copy.write(text.toUtf8());
        copy.close();
        QProcess tool;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("DESKO_HOME"), home.path());
        env.insert(QStringLiteral("DESKO_MAIL_CONFIG"), config);
        env.insert(QStringLiteral("TZ"), QStringLiteral("Europe/Berlin"));
        tool.setProcessEnvironment(env);
        tool.start(QStringLiteral(DESKO_CLI_PATH),
                   QStringList{QStringLiteral("export"), office} + options);
        if (!tool.waitForFinished(60000)) {
            ADD_FAILURE() << "the export did not finish";
            tool.kill();
            tool.waitForFinished();
        }
        return {tool.exitCode(), QString::fromUtf8(tool.readAllStandardError())};
    }

    QTemporaryDir home;
    QTemporaryDir work;
};

const QStringList kBothChannels = texts({"--email", "--calendar"});

}  // namespace

// Every agent's mail and every shift's meeting request arrive over one connection, as a
// reader and an independent calendar parser read them, the subject in any script.
TEST_F(MailExport, ReachesARealServerOverOneConnection) {
    MailServer server(work.path(), {});
    const QString subject =
        QStringLiteral("Расписание · 一月 2027 — a subject long enough to fold");
    const ToolRun run =
        exportOffice(QStringLiteral("port %1\n").arg(server.port), kBothChannels, subject);
    EXPECT_EQ(run.code, 0);
    EXPECT_EQ(run.err, QString());
    const QList<QJsonObject> received = server.received();
    ASSERT_EQ(received.size(), 12 + 124);
    QSet<int> peers;
    QSet<QString> appointments;
    for (const QJsonObject& message : received) {
        peers.insert(message[u"peer"].toInt());
        appointments.insert(message[u"calendar"][u"uid"].toString());
    }
    EXPECT_EQ(peers.size(), 1);
    EXPECT_EQ(appointments.size(), 1 + 124);  // the mails have none
    const QJsonObject& first = received[0];
    EXPECT_EQ(first[u"rcpt"].toArray().first().toString(), u"patrick.brennan@example.org");
    EXPECT_EQ(first[u"subject"].toString(), subject);
    EXPECT_TRUE(first[u"text"].toString().startsWith(
        u"\nYou have been assigned the following shifts for the month of January 2027:\n\n"
        u"     January 5   (Tuesday)    8am-12pm\n     January 6   (Wednesday)  12pm-4pm\n"));
    const auto request = std::find_if(received.begin(), received.end(), [](const QJsonObject& m) {
        return m[u"to"].toString() == u"wei.chen@example.org" &&
               m[u"calendar"][u"start"].toString() == u"2027-01-06T16:00:00+01:00";
    });
    ASSERT_NE(request, received.end());
    const QJsonObject calendar = (*request)[u"calendar"].toObject();
    EXPECT_EQ(calendar[u"end"].toString(), u"2027-01-06T20:00:00+01:00");
    EXPECT_EQ(calendar[u"attendee"].toString(), u"mailto:wei.chen@example.org");
    EXPECT_EQ(calendar[u"organizer"].toString(), u"mailto:desk@example.org");
    EXPECT_EQ(calendar[u"rsvp"].toString(), u"FALSE");
    EXPECT_EQ(calendar[u"method"].toString(), u"REQUEST");
    EXPECT_EQ(calendar[u"typeMethod"].toString(), u"REQUEST");
    EXPECT_EQ(calendar[u"timezones"].toInt(), 1);
}

// TLS and a login as the account asks; a server that refuses, drops or stays silent, and an
// account that cannot be opened: each message's failure is a results line, the export runs
// to its end, and no password is ever told.
TEST_F(MailExport, GoesOnPastEveryFailure) {
    QProcess openssl;
    openssl.setStandardErrorFile(QProcess::nullDevice());
    openssl.start(QStringLiteral("openssl"),
                  {QStringLiteral("req"), QStringLiteral("-x509"), QStringLiteral("-newkey"),
                   QStringLiteral("rsa:2048"), QStringLiteral("-nodes"), QStringLiteral("-subj"),
                   QStringLiteral("/CN=localhost"), QStringLiteral("-addext"),
                   QStringLiteral("subjectAltName=IP:127.0.0.1"), QStringLiteral("-keyout"),
                   work.filePath(QStringLiteral("key.pem")), QStringLiteral("-out"),
                   work.filePath(QStringLiteral("cert.pem"))});
    ASSERT_TRUE(openssl.waitForFinished(60000));
    const QString tls = QStringLiteral(
                            "tls on\ntls_starttls on\ntls_trust_file %1\nauth on\n"
                            "user desk\n")
                            .arg(work.filePath(QStringLiteral("cert.pem")));
    const QStringList secure = {QStringLiteral("--tls"),
                                work.filePath(QStringLiteral("cert.pem")),
                                work.filePath(QStringLiteral("key.pem")),
                                QStringLiteral("--login"),
                                QStringLiteral("desk"),
                                QStringLiteral("s3cret")};
    struct Case {
        const char* name;
        QStringList server;
        QString account;  // after the port; a null text for no configuration at all
        int received;
        QStringList told;  // lines of the results, or messages, on standard error
        int failures;      // results lines in all
    };
    const QString email = QStringLiteral("Failed to send e-mail to %1  (%2)");
    const QString request = QStringLiteral("Failed to create an Outlook appointment for %1  (%2)");
    const Case cases[] = {
        {"starttls and login",
         secure,
         tls + QStringLiteral("passwordeval echo s3cret\n"),
         12 + 124,
         {},
         0},
        {"wrong password",
         secure,
         tls + QStringLiteral("password wr0ng\n"),
         0,
         {email.arg(u"erik.svensson@example.org", u"535 5.7.8 Authentication credentials invalid")},
         24},
        {"refused recipient",
         texts({"--refuse", "wei.chen@example.org"}),
         QStringLiteral(""),
         136 - 11,
         {email.arg(u"wei.chen@example.org",
                    u"550 5.1.1 <wei.chen@example.org>: Recipient address rejected"),
          request.arg(u"wei.chen@example.org",
                      u"550 5.1.1 <wei.chen@example.org>: Recipient address rejected")},
         2},
        {"dropped connection",
         texts({"--drop-at", "3"}),
         QStringLiteral(""),
         136 - 1,
         {email.arg(u"sofia.delgado@example.org", u"")},
         1},
        {"silent server",
         texts({"--silent"}),
         QStringLiteral("timeout 1\n"),
         0,
         {email.arg(u"erik.svensson@example.org", u"")},
         24},
        {"failing password command",
         {},
         QStringLiteral("passwordeval exit 3\n"),
         0,
         {email.arg(u"wei.chen@example.org",
                    u"The password command of the mail account \"office\" failed")},
         24},
        {"no configuration",
         {},
         QString(),
         0,
         {QStringLiteral("No MAPI profiles could be found on this system.  Please check your "
                         "e-mail configuration and retry.")},
         0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        QDir(work.path()).remove(QStringLiteral("received.jsonl"));
        MailServer server(work.path(), c.server);
        QElapsedTimer clock;
        clock.start();
        const QString account = c.account.isNull()
                                    ? QString()
                                    : QStringLiteral("port %1\n").arg(server.port) + c.account;
        const ToolRun run = exportOffice(account, kBothChannels);
        EXPECT_LT(clock.elapsed(), 20000);
        EXPECT_EQ(run.code, 0);
        EXPECT_EQ(server.received().size(), c.received);
        for (const QString& line : c.told) {
            EXPECT_TRUE(run.err.contains(line.endsWith(u"  ()") ? line.chopped(1) : line))
                << line.toStdString() << "\n"
                << run.err.toStdString();
        }
        EXPECT_EQ(run.err.count(QStringLiteral("\nFailed to ")), c.failures);
        EXPECT_FALSE(run.err.contains(u"wr0ng") || run.err.contains(u"s3cret"));
    }
}

// Without a server, the outbox holds each message that would have gone, in sending order.
TEST_F(MailExport, WritesTheOutboxInSendingOrder) {
    const QString outbox = work.filePath(QStringLiteral("out/box"));
    const ToolRun run =
        exportOffice(QStringLiteral("port 1\n"),
                     kBothChannels + QStringList{QStringLiteral("--outbox"), outbox});
    EXPECT_EQ(run.code, 0);
    EXPECT_EQ(run.err, QString());
    const QStringList files = QDir(outbox).entryList(QDir::Files, QDir::Name);
    ASSERT_EQ(files.size(), 12 + 124);
    EXPECT_EQ(files.front(), QStringLiteral("0001.eml"));
    EXPECT_EQ(files.back(), QStringLiteral("0136.eml"));
    EXPECT_TRUE(fileText(QDir(outbox).filePath(files[0]))
                    .contains(QStringLiteral("\r\nTo: patrick.brennan@example.org\r\n")));
    EXPECT_TRUE(fileText(QDir(outbox).filePath(files[12]))
                    .contains(QStringLiteral("text/calendar; method=REQUEST; charset=UTF-8")));
}
