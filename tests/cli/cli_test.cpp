#include <gtest/gtest.h>

#include <QByteArrayList>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStringList>
#include <QTemporaryDir>

#include <vector>

namespace {

const QString kDko = QStringLiteral("Example Office.dko");
const QString kIni = QStringLiteral("Desko40.ini");

const QString kRefusal = QStringLiteral(
    "The file you are attempting to open cannot be read by this version of the program.  Please "
    "open this DKO file using the version of Desko for Windows with which it was created.");

struct Result {
    int code = -1;
    QString out;
    QString err;
};

QByteArray readBytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeBytes(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    ASSERT_EQ(file.write(bytes), bytes.size());
}

// The lines of a file whose lines end in CR LF, each keeping its CR.
QByteArrayList crlfLines(const QByteArray& bytes) {
    return bytes.split('\n');
}

// A refusal or a file error is told on one line, and the line names the file.
void expectOneLineNaming(const Result& r, const QString& path) {
    EXPECT_EQ(r.code, 1);
    EXPECT_TRUE(r.out.isEmpty()) << r.out.toStdString();
    EXPECT_TRUE(r.err.endsWith(QLatin1Char('\n'))) << r.err.toStdString();
    EXPECT_EQ(r.err.count(QLatin1Char('\n')), 1) << r.err.toStdString();
    EXPECT_TRUE(r.err.contains(path)) << r.err.toStdString();
}

class Cli : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(home_.isValid());
        ASSERT_TRUE(work_.isValid());
    }

    // Whatever the tool did, it leaves nothing in the program's directory: no working file
    // and no log.
    void TearDown() override {
        const QStringList left =
            QDir(home_.path())
                .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
        EXPECT_TRUE(left.isEmpty()) << left.join(QStringLiteral(", ")).toStdString();
    }

    Result run(const QStringList& args) const {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("DESKO_HOME"), home_.path());
        QProcess process;
        process.setProcessEnvironment(env);
        process.setWorkingDirectory(work_.path());
        process.start(QStringLiteral(DESKO_CLI_PATH), args);
        Result result;
        if (!process.waitForFinished(30000) || process.exitStatus() != QProcess::NormalExit) {
            ADD_FAILURE() << "the tool did not finish: "
                          << args.join(QLatin1Char(' ')).toStdString();
            return result;
        }
        result.code = process.exitCode();
        result.out = QString::fromUtf8(process.readAllStandardOutput());
        result.err = QString::fromUtf8(process.readAllStandardError());
        return result;
    }

    QString path(const QString& name) const { return work_.filePath(name); }

    // The original bytes of an example file; the tool never runs on the files themselves.
    static QByteArray example(const QString& name) {
        const QByteArray bytes = readBytes(QStringLiteral(DESKO_EXAMPLES_DIR "/office/") + name);
        EXPECT_FALSE(bytes.isEmpty()) << name.toStdString();
        return bytes;
    }

    // Writes bytes under the work directory; returns the path.
    QString place(const QString& name, const QByteArray& bytes) const {
        const QString target = path(name);
        writeBytes(target, bytes);
        return target;
    }

    QString copyExample(const QString& name) const { return place(name, example(name)); }

private:
    QTemporaryDir home_;
    QTemporaryDir work_;
};

TEST_F(Cli, Invocations) {
    enum class Err { None, Usage, OneLine };
    struct Case {
        QStringList args;
        int code;
        QString out;
        Err err;
        QString named;  // the file the error line names
    };

    const QString dko = copyExample(kDko);
    const QString missing = path(QStringLiteral("missing.dko"));
    const QString dir = path(QStringLiteral("folder.dko"));
    ASSERT_TRUE(QDir().mkdir(dir));
    const QString out = path(QStringLiteral("out.dko"));
    const auto args = [](std::initializer_list<const char*> words) {
        QStringList list;
        for (const char* word : words) {
            list.append(QString::fromUtf8(word));
        }
        return list;
    };

    const std::vector<Case> cases = {
        // The weekday of the first, the month's length and whether it needs a sixth week row.
        {args({"month", "1996", "1"}), 0, QStringLiteral("1 31 0\n"), Err::None, {}},
        {args({"month", "1996", "3"}), 0, QStringLiteral("5 31 1\n"), Err::None, {}},
        {args({"month", "1995", "1"}), 0, QStringLiteral("0 31 0\n"), Err::None, {}},
        {args({"month", "2027", "1"}), 0, QStringLiteral("5 31 1\n"), Err::None, {}},
        {args({"month", "2018", "9"}), 0, QStringLiteral("6 30 1\n"), Err::None, {}},
        // A 29-day February starting on a Saturday still fits five rows.
        {args({"month", "2020", "2"}), 0, QStringLiteral("6 29 0\n"), Err::None, {}},
        // Every fourth year is a leap year, 2100 included, and the days after its 29 February
        // are counted on from it.
        {args({"month", "2100", "2"}), 0, QStringLiteral("1 29 0\n"), Err::None, {}},
        {args({"month", "2100", "3"}), 0, QStringLiteral("2 31 0\n"), Err::None, {}},
        {args({"interpret", "9 AM to 5 PM"}),
         0,
         QStringLiteral("True\t09:00 AM\t05:00 PM\n"),
         Err::None,
         {}},
        {args({"interpret", "Closed"}), 0, QStringLiteral("False\t\t\n"), Err::None, {}},

        {{}, 2, {}, Err::Usage, {}},
        {args({"calendar", "1996", "1"}), 2, {}, Err::Usage, {}},
        {args({"month", "1996"}), 2, {}, Err::Usage, {}},
        {args({"month", "1996", "1", "1"}), 2, {}, Err::Usage, {}},
        {args({"month", "MCMXCVI", "1"}), 2, {}, Err::Usage, {}},
        {args({"month", "1996", "Jan"}), 2, {}, Err::Usage, {}},
        {args({"month", "1996", "0"}), 2, {}, Err::Usage, {}},
        {args({"month", "1996", "13"}), 2, {}, Err::Usage, {}},
        {args({"interpret"}), 2, {}, Err::Usage, {}},
        {args({"interpret", "9am-5pm", "10am-6pm"}), 2, {}, Err::Usage, {}},
        {{QStringLiteral("resave"), dko}, 2, {}, Err::Usage, {}},
        {{QStringLiteral("resave"), dko, out, out}, 2, {}, Err::Usage, {}},
        {{QStringLiteral("resave"), QStringLiteral("--working"), dko}, 2, {}, Err::Usage, {}},
        {args({"keys"}), 2, {}, Err::Usage, {}},
        {{QStringLiteral("keys"), dko, dko}, 2, {}, Err::Usage, {}},

        {{QStringLiteral("keys"), missing}, 1, {}, Err::OneLine, missing},
        {{QStringLiteral("keys"), dir}, 1, {}, Err::OneLine, dir},
        {{QStringLiteral("resave"), missing, out}, 1, {}, Err::OneLine, missing},
        {{QStringLiteral("resave"), dir, out}, 1, {}, Err::OneLine, dir},
        {{QStringLiteral("resave"), QStringLiteral("--working"), missing, out},
         1,
         {},
         Err::OneLine,
         missing},
    };

    for (const Case& c : cases) {
        SCOPED_TRACE(c.args.join(QLatin1Char(' ')).toStdString());
        const Result r = run(c.args);
        EXPECT_EQ(r.code, c.code);
        EXPECT_EQ(r.out.toStdString(), c.out.toStdString());
        switch (c.err) {
            case Err::None:
                EXPECT_TRUE(r.err.isEmpty()) << r.err.toStdString();
                break;
            case Err::Usage:
                EXPECT_TRUE(r.err.startsWith(QStringLiteral("usage:"))) << r.err.toStdString();
                break;
            case Err::OneLine:
                expectOneLineNaming(r, c.named);
                break;
        }
    }
    EXPECT_FALSE(QFileInfo::exists(out));
}

// A file read and written again comes out as it went in, to the byte.
TEST_F(Cli, ResaveRoundTrip) {
    struct Case {
        QString name;
        bool working;
    };
    const Case cases[] = {{kDko, false}, {kIni, true}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name.toStdString());
        const QByteArray original = example(c.name);
        const QString in = place(c.name, original);
        const QString out = path(QStringLiteral("resaved-") + c.name);
        QStringList args = {QStringLiteral("resave")};
        if (c.working) {
            args.append(QStringLiteral("--working"));
        }
        const Result r = run(args << in << out);
        EXPECT_EQ(r.code, 0);
        EXPECT_TRUE(r.out.isEmpty()) << r.out.toStdString();
        EXPECT_TRUE(r.err.isEmpty()) << r.err.toStdString();
        EXPECT_EQ(readBytes(out).toStdString(), original.toStdString());
        EXPECT_EQ(readBytes(in).toStdString(), original.toStdString());
    }
}

// Only a schedule file whose version begins "4.0." is read. A refused file is left as it
// was, and nothing is written.
TEST_F(Cli, VersionTest) {
    struct Case {
        const char* versionLine;  // replaces "Version=4.0.10"; empty removes the line
        bool refused;
    };
    const Case cases[] = {
        {"Version=3.2.1", true},
        {"Version=4.0", true},
        {"Version=4.00.1", true},
        {"Version=14.0.1", true},
        {"", true},
        {"Version=4.0.7", false},
        {"Version=4.0.", false},
        {"Version=4.0.10", false},
    };
    const QByteArray original = example(kDko);
    int number = 0;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.versionLine);
        QByteArray text = original;
        const QByteArray versionLine = QByteArray(c.versionLine);
        text.replace("Version=4.0.10\r\n", versionLine.isEmpty() ? "" : versionLine + "\r\n");
        ++number;
        const QString in = place(QStringLiteral("version%1.dko").arg(number), text);
        const QString out = path(QStringLiteral("out%1.dko").arg(number));

        const Result resaved = run({QStringLiteral("resave"), in, out});
        const Result keyed = run({QStringLiteral("keys"), in});
        if (c.refused) {
            for (const Result& r : {resaved, keyed}) {
                expectOneLineNaming(r, in);
                EXPECT_TRUE(r.err.contains(kRefusal)) << r.err.toStdString();
            }
            EXPECT_FALSE(QFileInfo::exists(out));
        } else {
            EXPECT_EQ(resaved.code, 0) << resaved.err.toStdString();
            EXPECT_EQ(keyed.code, 0) << keyed.err.toStdString();
            EXPECT_EQ(keyed.out.count(QLatin1Char('\n')), 12);
            EXPECT_TRUE(QFileInfo::exists(out));
        }
        EXPECT_EQ(readBytes(in).toStdString(), text.toStdString());
    }
}

TEST_F(Cli, UnwritableTargets) {
    const QString dko = copyExample(kDko);
    const QString ini = copyExample(kIni);
    const QString missingDir = path(QStringLiteral("no such folder"));
    const QString folder = path(QStringLiteral("folder"));
    ASSERT_TRUE(QDir().mkdir(folder));
    const QByteArray kept = "kept\r\n";
    const QString readOnly = place(QStringLiteral("read-only.dko"), kept);
    ASSERT_TRUE(
        QFile::setPermissions(readOnly, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther));

    struct Case {
        QStringList args;
        QString target;
    };
    const Case cases[] = {
        {{QStringLiteral("resave"), dko, missingDir + QStringLiteral("/out.dko")},
         missingDir + QStringLiteral("/out.dko")},
        {{QStringLiteral("resave"), QStringLiteral("--working"), ini,
          missingDir + QStringLiteral("/Desko40.ini")},
         missingDir + QStringLiteral("/Desko40.ini")},
        {{QStringLiteral("resave"), dko, folder}, folder},
        // A file without write permission is not replaced, whoever runs the tool.
        {{QStringLiteral("resave"), dko, readOnly}, readOnly},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.args.join(QLatin1Char(' ')).toStdString());
        expectOneLineNaming(run(c.args), c.target);
    }
    EXPECT_FALSE(QFileInfo::exists(missingDir));
    EXPECT_TRUE(QDir(folder).isEmpty());
    EXPECT_EQ(readBytes(readOnly).toStdString(), kept.toStdString());
    EXPECT_EQ(readBytes(dko).toStdString(), example(kDko).toStdString());
    EXPECT_EQ(readBytes(ini).toStdString(), example(kIni).toStdString());
}

// Agents who share a name are told apart by the first letters of their other name.
TEST_F(Cli, AgentKeys) {
    const Result r = run({QStringLiteral("keys"), copyExample(kDko)});
    EXPECT_EQ(r.code, 0);
    EXPECT_TRUE(r.err.isEmpty()) << r.err.toStdString();
    const QStringList lines = r.out.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 12) << r.out.toStdString();
    const struct {
        int index;
        const char* line;
    } expected[] = {
        {1, "1\tBrennan\tPatrick"},     {4, "4\tFischer\tAnna (F.)"},  {5, "5\tGarcia (M.)\tMaria"},
        {6, "6\tGarcia (R.)\tRoberto"}, {8, "8\tKowalski\tAnna (K.)"},
    };
    for (const auto& e : expected) {
        EXPECT_EQ(lines[e.index - 1].toStdString(), e.line);
    }
}

// Missing title settings are filled in on loading and written back into the file at once,
// the grid font under a key of its own that nothing reads. The next full save drops it.
TEST_F(Cli, LoadingWritesDefaultsBack) {
    const QByteArray original = example(kDko);
    QByteArray text = original;
    text.replace("Office Grid Font=Times New Roman\r\n", "");
    text.replace("Tearsheet Fontsize=12\r\n", "Tearsheet Fontsize=0\r\n");
    ASSERT_NE(text, original);
    const QString dko = place(kDko, text);

    const Result r = run({QStringLiteral("keys"), dko});
    EXPECT_EQ(r.code, 0);
    EXPECT_TRUE(r.err.isEmpty()) << r.err.toStdString();

    const QByteArrayList before = crlfLines(text);
    QByteArrayList after = crlfLines(readBytes(dko));
    const qsizetype stray = after.indexOf("Grid Font=Times New Roman\r");
    ASSERT_GE(stray, 0);
    EXPECT_GT(stray, after.indexOf("[Titles]\r"));
    EXPECT_LT(stray, after.indexOf("[Settings]\r"));
    after.removeAt(stray);
    ASSERT_EQ(after.size(), before.size());
    for (qsizetype i = 0; i < before.size(); ++i) {
        const QByteArray expected = before[i] == "Tearsheet Fontsize=0\r"
                                        ? QByteArray("Tearsheet Fontsize=12\r")
                                        : before[i];
        EXPECT_EQ(after[i].toStdString(), expected.toStdString()) << "line " << i + 1;
    }

    const QString out = path(QStringLiteral("resaved.dko"));
    EXPECT_EQ(run({QStringLiteral("resave"), dko, out}).code, 0);
    EXPECT_EQ(readBytes(out).toStdString(), original.toStdString());
}

}  // namespace
