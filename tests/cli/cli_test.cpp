#include "core/services/textfile.h"
#include "fakes.h"
#include "persistence/backupring.h"
#include "tables.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

struct Result {
    int code = -1;
    QString out;
    QString err;
};

// Runs the tool with its home in an empty directory, which must stay empty: the tool writes
// no working file and no log.
class Cli : public ::testing::Test {
protected:
    void TearDown() override {
        EXPECT_TRUE(
            QDir(home.path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    }

    Result run(const QStringList& args) const {
        QProcess process;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("DESKO_HOME"), home.path());
        process.setProcessEnvironment(env);
        process.start(QStringLiteral(DESKO_CLI_PATH), args);
        if (!process.waitForFinished(30000)) {
            ADD_FAILURE() << "the tool did not finish";
            return {};
        }
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }

    // A copy of an example file; the files under examples/ are never touched.
    QString example(const char* name) const {
        const QString copy = work.filePath(QString::fromUtf8(name));
        QFile::copy(QStringLiteral(DESKO_EXAMPLES_DIR "/office/") + QString::fromUtf8(name), copy);
        return copy;
    }

    QTemporaryDir home;
    QTemporaryDir work;
};

TEST_F(Cli, AnswersAndUsage) {
    for (const QStringList& row : tableRows("cli/golden/answers.tsv")) {
        SCOPED_TRACE(row[0].toStdString());
        const Result r = run(row[0].split(QLatin1Char('|'), Qt::SkipEmptyParts));
        EXPECT_EQ(r.code, row[1].toInt());
        EXPECT_EQ(r.out, row.value(2));
        EXPECT_EQ(r.err.startsWith(QStringLiteral("usage: desko40-cli")), r.code == 2);
    }
}

// The balance of months counted by hand, as a table and as JSON.
TEST_F(Cli, BalanceTellsTheHandCountedMonths) {
    const QDir golden(QStringLiteral(DESKO_BALANCE_DIR));
    for (const QString& month : golden.entryList({QStringLiteral("*.dko")})) {
        SCOPED_TRACE(month.toStdString());
        const QString in = work.filePath(month);
        QFile::copy(golden.filePath(month), in);
        const QString base = golden.filePath(QFileInfo(month).completeBaseName());
        for (const char* format : {"tsv", "json"}) {
            const QString expected = base + QLatin1Char('.') + QLatin1String(format);
            if (QFile::exists(expected)) {
                const Result r = run({QStringLiteral("balance"), in, QStringLiteral("--format"),
                                      QString::fromUtf8(format)});
                EXPECT_EQ(r.code, 0);
                EXPECT_EQ(r.out, fileText(expected));
            }
        }
    }
}

TEST_F(Cli, KeysTellAgentsOfOneNameApart) {
    const Result r = run({QStringLiteral("keys"), example("Example Office.dko")});
    EXPECT_EQ(r.code, 0);
    EXPECT_EQ(r.out, testFileText("cli/golden/example-keys.txt"));
}

// Each question of the command is answered Yes and shown on standard error; a serial engine
// starts from the agent given, who takes the first position: Saturday the 2nd going day by
// day, Sunday the 3rd when the weekends come first. What each engine deals from a seed is
// held by the golden files.
TEST_F(Cli, GenerateAnswersYesAndStartsFromTheAgentGiven) {
    const QString in = example("Example Office.dko");
    const QString out = work.filePath(QStringLiteral("out.dko"));
    for (const auto& [engine, day] : {std::pair{"horizontal", 2}, std::pair{"mixed", 3}}) {
        SCOPED_TRACE(engine);
        const auto generate = [&](const char* base) {
            return run({QStringLiteral("generate"), in, out, QStringLiteral("--engine"),
                        QString::fromUtf8(engine), QStringLiteral("--base"),
                        QString::fromUtf8(base)});
        };
        const Result r = generate("5");
        EXPECT_EQ(r.code, 0);
        EXPECT_EQ(r.err, QStringLiteral("desko40-cli: ") + in +
                             QStringLiteral(": Generating a new schedule will erase the previous "
                                            "schedule.  Would you like to proceed?\n"));
        EXPECT_TRUE(fileText(out).contains(QStringLiteral("=%1|1|0|Garcia (M.)\r\n").arg(day)));
        EXPECT_EQ(generate("13").code, 1);
    }
}

// A file that cannot be read or written, or a schedule of another version: status 1 and one
// line on standard error that names the file; nothing is written.
TEST_F(Cli, FailuresNameTheFileOnOneLine) {
    const QString dko = example("Example Office.dko");
    const QString old = work.filePath(QStringLiteral("old.dko"));
    const QString text =
        fileText(dko).replace(QStringLiteral("Version=4.0.10"), QStringLiteral("Version=3.2.1"));
    ASSERT_TRUE(writeTextFile(old, text));
    const QString newFile = work.filePath(QStringLiteral("new.dko"));
    const auto filled = [&](QString field) {
        return field
            .replace(QStringLiteral("{missing}"), work.filePath(QStringLiteral("missing.dko")))
            .replace(QStringLiteral("{folder}"), work.path())
            .replace(QStringLiteral("{nowhere}"),
                     work.filePath(QStringLiteral("no such folder/out.dko")))
            .replace(QStringLiteral("{office}"), dko)
            .replace(QStringLiteral("{old}"), old)
            .replace(QStringLiteral("{new}"), newFile);
    };
    for (const QStringList& row : tableRows("cli/golden/failures.tsv")) {
        SCOPED_TRACE(row[0].toStdString());
        const Result r = run(filled(row[0]).split(QLatin1Char('|')));
        EXPECT_EQ(r.code, 1);
        EXPECT_EQ(r.err, QStringLiteral("desko40-cli: ") + filled(row[1]) + QStringLiteral(": ") +
                             row[2] + QLatin1Char('\n'));
    }
    EXPECT_FALSE(QFile::exists(newFile));
    EXPECT_EQ(fileText(old), text);
}

// A report as PDF files, one a document, and the trace of every call to the printer.
TEST_F(Cli, PrintWritesAReportAsPdfFiles) {
    const QString out = work.filePath(QStringLiteral("slips.pdf"));
    const QString trace = work.filePath(QStringLiteral("slips.trace"));
    const Result r = run({QStringLiteral("print"), example("Example Office.dko"),
                          QStringLiteral("--report"), QStringLiteral("tearsheet"),
                          QStringLiteral("--pdf"), out, QStringLiteral("--trace"), trace});
    EXPECT_EQ(r.code, 0);
    EXPECT_EQ(r.err, QString());
    for (const char* file : {"slips.pdf", "slips-2.pdf"}) {
        QFile pdf(work.filePath(QString::fromUtf8(file)));
        ASSERT_TRUE(pdf.open(QIODevice::ReadOnly)) << file;
        EXPECT_TRUE(pdf.read(5) == "%PDF-");
    }
    EXPECT_FALSE(QFile::exists(work.filePath(QStringLiteral("slips-3.pdf"))));
    const QStringList calls = fileText(trace).split(QLatin1Char('\n'));
    EXPECT_EQ(calls.filter(QStringLiteral("Print \"Brennan, Patrick\"  ' at (")).size(), 1);
    EXPECT_EQ(calls.count(QStringLiteral("EndDoc")), 3);
}

}  // namespace

// The ring keeps the newest copies, never the same one twice in a row. The tool lists them,
// the newest first, and puts one back after keeping the file it replaces, but not while a
// Desko runs in the folder.
TEST_F(Cli, BackupsAreListedAndPutBack) {
    const QString ini = work.filePath(QStringLiteral("Desko40.ini"));
    QString office = QStringLiteral("[Agents]\r\n");
    for (int agents = 1; agents <= kBackupsKept + 2; ++agents) {
        office += QString::number(agents) + QStringLiteral("=A|a|\r\n");
        writeTextFile(ini, office);
        keepBackup(ini, QDateTime(QDate(2001, 1, 15), QTime(9, 0, agents)));
        keepBackup(ini, QDateTime(QDate(2001, 1, 15), QTime(9, 0, agents)));
    }
    const Result listed = run({QStringLiteral("backups"), work.path()});
    const QStringList lines = listed.out.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    EXPECT_EQ(lines.size(), kBackupsKept);
    EXPECT_EQ(lines.first(), QStringLiteral("2001-01-15 09:00:32\t32 agents\t%1 bytes\t"
                                            "Desko40-20010115-090032.ini")
                                 .arg(office.size()));

    const QStringList restore = {QStringLiteral("restore"),
                                 QStringLiteral("Desko40-20010115-090003.ini"), work.path()};
    {
        QLockFile running(work.filePath(QStringLiteral("Desko40.lock")));
        ASSERT_TRUE(running.lock());
        EXPECT_EQ(run(restore).code, 1);
    }
    writeTextFile(ini, QStringLiteral("[Agents]\r\n"));
    EXPECT_EQ(run(restore).code, 0);
    EXPECT_EQ(fileText(ini).count(QStringLiteral("=A|a|")), 3);
    EXPECT_EQ(fileText(listBackups(ini).front().path), QStringLiteral("[Agents]\r\n"));
}
