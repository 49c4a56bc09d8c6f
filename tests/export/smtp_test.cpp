// The export through the headless tool to a real mail server on this machine: Debian's
// aiosmtpd, started by smtpserver.py, which reads each message as a mail reader would and
// each calendar request with python3-icalendar.

#include "core/services/textfile.h"
#include "fakes.h"
#include "mailserver.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

const QString kSubject = QStringLiteral("Расписание · 一月 2027 — a subject long enough to fold");

class MailExport : public ::testing::Test {
protected:
    // Exports the example office, its mail's subject in other scripts, through both mail
    // channels, the account "office" having the lines given (none at all for a null text), in
    // Central European time; standard error.
    QString exportOffice(const QString& account, const QStringList& more = {}) {
        const QString config = work.filePath(QStringLiteral("msmtprc"));
        writeTextFile(
            config,
            QStringLiteral("account office\nhost 127.0.0.1\nfrom d@example.org\n") + account);
        const QString office = work.filePath(QStringLiteral("office.dko"));
        QString text = fileText(QStringLiteral(DESKO_EXAMPLES_DIR "/office/Example Office.dko"));
        writeTextFile(office, text.replace(QStringLiteral("Subject=January 2027 Desko Schedule"),
                                           QStringLiteral("Subject=") + kSubject));
        QProcess tool;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("DESKO_HOME"), home.path());
        env.insert(QStringLiteral("DESKO_MAIL_CONFIG"), account.isNull() ? home.path() : config);
        env.insert(QStringLiteral("TZ"), QStringLiteral("Europe/Berlin"));
        tool.setProcessEnvironment(env);
        tool.start(QStringLiteral(DESKO_CLI_PATH), QStringList{QStringLiteral("export"), office} +
                                                       texts({"--email", "--calendar"}) + more);
        EXPECT_TRUE(tool.waitForFinished(60000));
        EXPECT_EQ(tool.exitCode(), 0);
        return QString::fromUtf8(tool.readAllStandardError());
    }
    // The messages the server took, as the script read them.
    QList<QJsonObject> received() const {
        QList<QJsonObject> messages;
        for (const QString& line : fileText(file).split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
            messages.append(QJsonDocument::fromJson(line.toUtf8()).object());
        }
        return messages;
    }

    QTemporaryDir home;
    QTemporaryDir work;
    const QString file = work.filePath(QStringLiteral("received.jsonl"));
};

}  // namespace

// Every agent's mail and every shift's meeting request arrive over one connection, as a
// reader and an independent calendar parser read them, the subject in any script.
TEST_F(MailExport, ReachesARealServerOverOneConnection) {
    MailServer server(file, {});
    EXPECT_EQ(exportOffice(QStringLiteral("port %1\n").arg(server.port)), QString());
    const QList<QJsonObject> messages = received();
    ASSERT_EQ(messages.size(), 12 + 124);
    QSet<int> connections;
    QSet<QString> appointments;
    for (const QJsonObject& message : messages) {
        connections.insert(message[u"peer"].toInt());
        appointments.insert(message[u"calendar"][u"uid"].toString());
    }
    EXPECT_EQ(connections.size(), 1);
    EXPECT_EQ(appointments.size(), 1 + 124);  // the mails have none
    EXPECT_EQ(messages[0][u"rcpt"].toArray().first().toString(), u"patrick.brennan@example.org");
    EXPECT_EQ(messages[0][u"subject"].toString(), kSubject);
    EXPECT_TRUE(messages[0][u"text"].toString().startsWith(
        u"\nYou have been assigned the following shifts for the month of January 2027:\n\n"
        u"     January 5   (Tuesday)    8am-12pm\n     January 6   (Wednesday)  12pm-4pm\n"));
    const auto chen = std::find_if(messages.begin(), messages.end(), [](const QJsonObject& m) {
        return m[u"calendar"][u"start"].toString() == u"2027-01-06T16:00:00+01:00" &&
               m[u"to"].toString() == u"wei.chen@example.org";
    });
    ASSERT_NE(chen, messages.end());
    EXPECT_EQ(QJsonDocument((*chen)[u"calendar"].toObject()).toJson(QJsonDocument::Compact),
              R"({"attendee":"mailto:wei.chen@example.org","end":"2027-01-06T20:00:00+01:00",)"
              R"("method":"REQUEST","organizer":"mailto:d@example.org","rsvp":"FALSE",)"
              R"("start":"2027-01-06T16:00:00+01:00","timezones":1,"typeMethod":"REQUEST",)"
              R"("uid":")" +
                  (*chen)[u"calendar"][u"uid"].toString().toUtf8() + R"("})");
}

// TLS and a login as the account asks; a server that refuses, drops or stays silent; an
// account that cannot be opened; an outbox instead of a server. Each failed message is a
// results line, the export runs to its end in seconds, and no password is ever told.
TEST_F(MailExport, GoesOnPastEveryFailure) {
    const QString cert = work.filePath(QStringLiteral("cert.pem"));
    const QString key = work.filePath(QStringLiteral("key.pem"));
    QProcess openssl;
    openssl.setStandardErrorFile(QProcess::nullDevice());
    openssl.start(QStringLiteral("openssl"),
                  texts({"req", "-x509", "-newkey", "rsa:2048", "-nodes", "-subj", "/CN=localhost",
                         "-addext", "subjectAltName=IP:127.0.0.1", "-keyout"}) +
                      QStringList{key, QStringLiteral("-out"), cert});
    ASSERT_TRUE(openssl.waitForFinished(60000));
    const QString tls = QStringLiteral("tls on\ntls_trust_file %1\nauth on\nuser desk\n").arg(cert);
    const QStringList secure =
        QStringList{QStringLiteral("--tls"), cert, key} + texts({"--login", "desk", "s3cret"});
    const QString outbox = work.filePath(QStringLiteral("outbox"));
    const struct {
        QStringList server;
        QString account;  // after the port line; a null text for no configuration at all
        QStringList more;
        int received;
        const char* told;  // on standard error
        int failures;      // results lines in all
    } cases[] = {
        {secure, tls + QStringLiteral("passwordeval echo s3cret\n"), {}, 136, "", 0},
        {secure,
         tls + QStringLiteral("password wr0ng\n"),
         {},
         0,
         "svensson@example.org  (535 5.7.8 Authentication credentials invalid)\n",
         24},
        {texts({"--refuse", "wei.chen@example.org"}),
         QStringLiteral(""),
         {},
         136 - 11,
         "wei.chen@example.org  (550 5.1.1 <wei.chen@example.org>: Recipient address rejected)\n",
         2},
        {texts({"--drop-at", "3"}),
         QStringLiteral(""),
         {},
         136 - 1,
         "Failed to send e-mail to sofia.delgado@example.org  (",
         1},
        {texts({"--silent"}), QStringLiteral("timeout 1\n"), {}, 0, "erik.svensson", 24},
        {{},
         QStringLiteral("passwordeval exit 3\n"),
         {},
         0,
         "(The password command of the mail account \"office\" failed)",
         24},
        {{}, QString(), {}, 0, "No MAPI profiles could be found on this system.", 0},
        {{}, QStringLiteral(""), {QStringLiteral("--outbox"), outbox}, 0, "", 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.server.join(u' ').toStdString() + c.account.toStdString());
        MailServer server(file, c.server);
        const QString err = exportOffice(
            c.account.isNull() ? QString()
                               : QStringLiteral("port %1\n").arg(server.port) + c.account,
            c.more);
        EXPECT_EQ(received().size(), c.received);
        EXPECT_TRUE(err.contains(QString::fromUtf8(c.told))) << err.toStdString();
        EXPECT_EQ(err.count(QStringLiteral("\nFailed to ")), c.failures);
        EXPECT_FALSE(err.contains(u"wr0ng") || err.contains(u"s3cret"));
    }
    // The outbox holds each message that would have gone, in sending order.
    const QStringList sent = QDir(outbox).entryList(QDir::Files, QDir::Name);
    ASSERT_EQ(sent.size(), 136);
    EXPECT_EQ(sent.back(), QStringLiteral("0136.eml"));
    EXPECT_TRUE(fileText(QDir(outbox).filePath(sent[0]))
                    .contains(QStringLiteral("\r\nTo: patrick.brennan@example.org\r\n")));
}
