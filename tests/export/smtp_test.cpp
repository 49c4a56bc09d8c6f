// The export through the headless tool to a real mail server on this machine: Debian's
// aiosmtpd, started by smtpserver.py, which reads each message as a mail reader would and
// each calendar request with python3-icalendar.

#include "core/services/textfile.h"
#include "fakes.h"
#include "mailserver.h"
#include "tables.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <climits>

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
        for (const auto& [from, to] : changes) {
            text.replace(from, to);
        }
        writeTextFile(office, text.replace(QStringLiteral("Subject=January 2027 Desko Schedule"),
                                           QStringLiteral("Subject=") + kSubject));
        QProcess tool;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("DESKO_HOME"), home.path());
        env.insert(QStringLiteral("HOME"), home.path());
        env.insert(QStringLiteral("DESKO_MAIL_CONFIG"), account.isNull() ? home.path() : config);
        env.insert(QStringLiteral("TZ"), QStringLiteral("Europe/Berlin"));
        tool.setProcessEnvironment(env);
        const QStringList command =
            launcher +
            QStringList{QStringLiteral(DESKO_CLI_PATH), QStringLiteral("export"), office} +
            texts({"--email", "--calendar"}) + more;
        tool.start(command.front(), command.mid(1));
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

    // Changes made to the office's file before it is exported, in turn.
    QList<std::pair<QString, QString>> changes;
    // What runs the tool, as a command and its first arguments; nothing for the tool alone.
    QStringList launcher;
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
    QJsonObject calendar = (*chen)[u"calendar"].toObject();
    calendar.remove(u"sequence");  // the export's own
    // The request as the calendar parser read it, its identity the export's own.
    EXPECT_EQ(QString::fromUtf8(QJsonDocument(calendar).toJson(QJsonDocument::Compact)),
              testFileText("export/golden/chen-request.json")
                  .trimmed()
                  .replace(QStringLiteral("{uid}"), calendar[u"uid"].toString()));
}

// TLS and a login as the account asks; a server that refuses, drops or stays silent; an
// account that cannot be opened; an outbox instead of a server. Each failed message is a
// results line, the export runs to its end in seconds, and no password is ever told. The
// account as msmtp reads it: "tls_trust_file system" trusts the system's certificates, which
// know nothing of the server's own; without a password line the password comes from the
// desktop's keyring (a gnome-keyring of the test's own), else from ~/.netrc.
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
    const QString secure =
        (QStringList{QStringLiteral("--tls"), cert, key} + texts({"--login", "desk", "s3cret"}))
            .join(u'|');
    // Each export runs the password command once, however often the session is opened.
    const QString counted =
        QStringLiteral("passwordeval echo run >>%1; ").arg(work.filePath(QStringLiteral("runs")));
    const QString outbox = work.filePath(QStringLiteral("outbox"));
    const auto filled = [&](QString field) {
        return field.replace(QStringLiteral("{secure}"), secure)
            .replace(QStringLiteral("{tls}"), tls)
            .replace(QStringLiteral("{counted}"), counted)
            .replace(QStringLiteral("{outbox}"), outbox);
    };
    const QString none = QStringLiteral("{none}");
    for (const QStringList& row : tableRows("export/golden/mailfailures.tsv")) {
        SCOPED_TRACE(row[0].toStdString() + row[1].toStdString());
        writeTextFile(home.filePath(QStringLiteral(".netrc")), row.value(7));
        launcher = row[6] == none ? QStringList()
                                  : texts({"dbus-run-session", "--", "sh", DESKO_KEYRING_SCRIPT,
                                           "127.0.0.1", "desk"}) +
                                        QStringList{row[6]};
        MailServer server(file, filled(row[0]).split(u'|', Qt::SkipEmptyParts));
        const QString err = exportOffice(
            row[1] == none ? QString()
                           : QStringLiteral("port %1\n").arg(server.port) + filled(row[1]),
            filled(row[2]).split(u'|', Qt::SkipEmptyParts));
        EXPECT_EQ(received().size(), row[3].toInt());
        EXPECT_TRUE(err.contains(row[4])) << err.toStdString();
        EXPECT_EQ(err.count(QStringLiteral("\nFailed to ")), row[5].toInt());
        EXPECT_FALSE(err.contains(u"wr0ng") || err.contains(u"s3cret"));
    }
    EXPECT_EQ(fileText(work.filePath(QStringLiteral("runs"))), QStringLiteral("run\nrun\n"));
    // The outbox holds each message that would have gone, in sending order.
    const QStringList sent = QDir(outbox).entryList(QDir::Files, QDir::Name);
    ASSERT_EQ(sent.size(), 136);
    EXPECT_EQ(sent.back(), QStringLiteral("0136.eml"));
    EXPECT_TRUE(fileText(QDir(outbox).filePath(sent[0]))
                    .contains(QStringLiteral("\r\nTo: patrick.brennan@example.org\r\n")));
}

// After an export, a change and another export, each attendee's calendar (the messages applied
// in order, a version lower than the one held passed over) holds exactly what a first export of
// the final schedule would put there: the shift given to another agent and every appointment at
// the address an agent left are cancelled before the requests, and the shift whose time changed
// moves, all at a version above the first export's, though both ran within the same minute.
TEST_F(MailExport, LeavesEachCalendarHoldingTheFinalSchedule) {
    using Calendars = QMap<QString, QMap<QString, QString>>;  // attendee, appointment: times
    MailServer server(file, {});
    const QString account = QStringLiteral("port %1\n").arg(server.port);
    QMap<QString, int> versions;
    // Applies the messages from the one given on: the lowest version among them, and their
    // methods in turn, C for a cancellation and R for a request.
    const auto apply = [&](Calendars& calendars, qsizetype from) {
        int lowest = INT_MAX;
        QString methods;
        for (const QJsonObject& message : received().mid(from)) {
            const QJsonObject event = message[u"calendar"].toObject();
            const QString uid = event[u"uid"].toString();
            const int version = event[u"sequence"].toInt();
            if (event.isEmpty() || version < versions.value(uid)) {
                continue;
            }
            lowest = std::min(lowest, versions[uid] = version);
            methods += event[u"method"].toString().front();
            QMap<QString, QString>& calendar = calendars[event[u"attendee"].toString()];
            calendar.insert(uid, event[u"start"].toString() + u' ' + event[u"end"].toString());
            if (methods.endsWith(u'C')) {
                calendar.remove(uid);
            }
        }
        calendars.removeIf([](const auto& calendar) { return calendar.value().isEmpty(); });
        return std::pair{lowest, methods};
    };
    Calendars calendars;
    exportOffice(account);
    const int firstVersion = apply(calendars, 0).first;
    const qsizetype firstCount = received().size();
    changes = {{QStringLiteral("16=5|1|1|Brennan"), QStringLiteral("16=5|1|1|Chen")},
               {QStringLiteral("erik.svensson@"), QStringLiteral("erik.s@")},
               {QStringLiteral("1=9am-5pm|1"), QStringLiteral("1=9am-3pm|1")}};
    exportOffice(account);
    const auto [secondVersion, methods] = apply(calendars, firstCount);
    EXPECT_GT(secondVersion, firstVersion);
    const qsizetype moved = calendars.value(QStringLiteral("mailto:erik.s@example.org")).size();
    EXPECT_EQ(methods, QString(1 + moved, u'C') + QString(124, u'R'));

    // A first export of the final schedule, with no memory of the earlier ones.
    ASSERT_TRUE(QFile::remove(home.filePath(QStringLiteral("Desko40.requests"))));
    versions.clear();
    const qsizetype secondCount = received().size();
    exportOffice(account);
    Calendars fresh;
    apply(fresh, secondCount);
    EXPECT_EQ(calendars, fresh);
    EXPECT_EQ(fresh.size(), 12);
}

// The calendar files of an office with a shift whose time cannot be read and a "Leave empty"
// cell, as python3-icalendar reads them beside the meeting requests of the same export: a file
// per agent and one for the office, each publishing exactly its shifts in the local zone with
// the requests' appointments and times, the unreadable shift as a day's event.
TEST_F(MailExport, WritesCalendarFilesAsTheRequestsHaveThem) {
    changes = {{QStringLiteral("16=5|1|1|Brennan"), QStringLiteral("16=5|1|1|Leave empty")},
               {QStringLiteral("1=9am-5pm|1"), QStringLiteral("1=All day|1")}};
    const QString outbox = work.filePath(QStringLiteral("outbox"));
    const QString ics = work.filePath(QStringLiteral("calendars"));
    exportOffice(QStringLiteral(""),
                 {QStringLiteral("--outbox"), outbox, QStringLiteral("--ics"), ics});
    QProcess reader;
    reader.start(QStringLiteral("/usr/bin/python3"),
                 {QStringLiteral(DESKO_ICS_READER), ics, outbox});
    ASSERT_TRUE(reader.waitForFinished(60000));
    EXPECT_EQ(QString::fromUtf8(reader.readAllStandardOutput()),
              fileText(QStringLiteral(DESKO_ICS_GOLDEN)));
}
