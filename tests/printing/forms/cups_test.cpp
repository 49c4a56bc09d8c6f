#include "core/services/printers.h"
#include "core/services/textfile.h"
#include "fakes.h"
#include "offices.h"
#include "printing/forms/machineprinters.h"
#include "printing/fullcalendar.h"
#include "printing/printersetup.h"
#include "tables.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>

#include <gtest/gtest.h>

#include <csignal>

namespace {

// A print system of the test's own: a scheduler that listens on a socket in a temporary
// folder, keeps everything there, and has one queue, "DeskoTest", whose device is a file. The
// queue's printer takes PDF and gives it out as it came: a file device writes nothing for a
// queue without a driver.
struct PrintSystem {
    explicit PrintSystem(const QString& cupsd) {
        for (const char* folder : {"spool/tmp", "cache", "state", "log", "conf", "out"}) {
            QDir(dir.path()).mkpath(QString::fromUtf8(folder));
        }
        // The jobs run as the print system's own user.
        for (const QString& open : {dir.path(), dir.filePath(QStringLiteral("out"))}) {
            QFile::setPermissions(open, QFileDevice::Permission(0x7777));
        }
        const QString conf = write("cupsd.conf");
        const QString files = write("cups-files.conf");
        const QString ppd = write("desko.ppd");
        socket = dir.filePath(QStringLiteral("cups.sock"));
        output = dir.filePath(QStringLiteral("out/job.pdf"));
        // Without -f the scheduler answers only once it listens.
        ready = QProcess::execute(cupsd,
                                  {QStringLiteral("-c"), conf, QStringLiteral("-s"), files}) == 0 &&
                QProcess::execute(
                    QStringLiteral("lpadmin"),
                    {QStringLiteral("-h"), socket, QStringLiteral("-p"),
                     QStringLiteral("DeskoTest"), QStringLiteral("-E"), QStringLiteral("-v"),
                     QStringLiteral("file://") + output, QStringLiteral("-P"), ppd}) == 0;
    }
    ~PrintSystem() {
        const qint64 pid = fileText(dir.filePath(QStringLiteral("state/cupsd.pid"))).toLongLong();
        if (pid <= 0 || ::kill(static_cast<pid_t>(pid), SIGTERM) != 0) {
            return;
        }
        // The scheduler writes its cache as it ends; the folder goes only after it.
        const QDeadlineTimer deadline(10000);
        while (::kill(static_cast<pid_t>(pid), 0) == 0 && !deadline.hasExpired()) {
            QThread::msleep(10);
        }
    }
    // The print system's file of that name, R/ standing for its folder.
    QString write(const char* name) const {
        const QString path = dir.filePath(QStringLiteral("conf/") + QString::fromUtf8(name));
        writeTextFile(path, testFileText((std::string("printing/golden/cups/") + name).c_str())
                                .replace(QStringLiteral("R/"), dir.path() + QLatin1Char('/')));
        return path;
    }
    // Whether a job is still waiting or printing.
    bool busy() const {
        QProcess lpstat;
        lpstat.start(QStringLiteral("lpstat"),
                     {QStringLiteral("-h"), socket, QStringLiteral("-o")});
        lpstat.waitForFinished();
        return !lpstat.readAllStandardOutput().trimmed().isEmpty();
    }

    QTemporaryDir dir;
    QString socket;
    QString output;
    bool ready = false;
};

}  // namespace

// The full calendar goes through the program's own printer path to a real print queue and
// comes out as a PDF of one page.
TEST(MachinePrinters, AReportComesOutOfARealPrintQueue) {
    const QString cupsd = QStandardPaths::findExecutable(
        QStringLiteral("cupsd"), {QStringLiteral("/usr/sbin"), QStringLiteral("/sbin")});
    if (cupsd.isEmpty()) {
        GTEST_SKIP() << "cupsd is not installed (Debian's cups package)";
    }
    PrintSystem cups(cupsd);
    ASSERT_TRUE(cups.ready);
    qputenv("CUPS_SERVER", cups.socket.toLocal8Bit());

    TestServices s;
    Workspace ws;
    makeOffice(ws, 2027, 1, 12);
    dealInTurn(ws);
    ws.gCalendarFont = QStringLiteral("Times New Roman");
    const std::unique_ptr<Printers> printers =
        machinePrinters(cups.dir.filePath(QStringLiteral("pdf")));
    s.ctx.printers = printers.get();
    ASSERT_TRUE(printers->deviceNames().contains(QStringLiteral("DeskoTest")));
    choosePrinter(s.ctx, QStringLiteral("DeskoTest"));
    printFullCalendarCopy(ws, s.ctx, printers->printer());

    const QDeadlineTimer deadline(60000);
    while (cups.busy() && !deadline.hasExpired()) {
    }
    QProcess pdfinfo;
    pdfinfo.start(QStringLiteral("pdfinfo"), {cups.output});
    ASSERT_TRUE(pdfinfo.waitForFinished());
    EXPECT_EQ(pdfinfo.exitCode(), 0);
    EXPECT_TRUE(QString::fromUtf8(pdfinfo.readAllStandardOutput())
                    .contains(QRegularExpression(QStringLiteral("Pages: +1\n"))));
}
