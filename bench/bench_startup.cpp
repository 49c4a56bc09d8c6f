// From the start of the program's process to its main window on the screen, and the peak
// memory of that process, on a copy of the example office with the splash off.
//
// Each iteration starts this program anew as a child that runs the real start-up and ends
// as soon as the main window is up, printing its peak resident memory. The timing covers
// the whole child process: loading the libraries, the start-up, the first paint and exit.

#include "core/services/context.h"
#include "shell/forms/application.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdio>
#include <cstring>

namespace {

// The peak resident set of this process in kilobytes, as the kernel counts it.
long peakKilobytes() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) {
        return -1;
    }
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:")) {
            return line.mid(6).trimmed().split(' ').front().toLong();
        }
    }
    return -1;
}

int runChild(int argc, char* argv[]) {
    QApplication app(argc, argv);
    // The parent set the folder and left the splash out.
    Launch launch;
    launch.home = qEnvironmentVariable("DESKO_HOME");
    launch.splashMs = 0;
    return runProgram(app, launch, [] {
        QCoreApplication::processEvents();  // the first paint
        std::printf("%ld\n", peakKilobytes());
        std::fflush(stdout);
        std::_Exit(0);
    });
}

void BM_StartToMainWindow(benchmark::State& state, const char* self) {
    QTemporaryDir home;
    QFile::copy(QStringLiteral(DESKO_EXAMPLES_DIR "/office/Desko40.ini"),
                home.filePath(QStringLiteral("Desko40.ini")));
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("DESKO_HOME"), home.path());
    if (!env.contains(QStringLiteral("DISPLAY")) &&
        !env.contains(QStringLiteral("QT_QPA_PLATFORM"))) {
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    }
    long peak = 0;
    for (auto _ : state) {
        QProcess child;
        child.setProcessEnvironment(env);
        const auto begin = std::chrono::steady_clock::now();
        child.start(QString::fromLocal8Bit(self), {QStringLiteral("--child")});
        child.waitForFinished(30000);
        const auto end = std::chrono::steady_clock::now();
        state.SetIterationTime(std::chrono::duration<double>(end - begin).count());
        peak = std::max(peak, child.readAllStandardOutput().trimmed().toLong());
        QFile::remove(home.filePath(QStringLiteral("Desko40.lock")));
    }
    state.counters["peak_MB"] = static_cast<double>(peak) / 1024.0;
}

}  // namespace

int main(int argc, char* argv[]) {
    if (argc > 1 && std::strcmp(argv[1], "--child") == 0) {
        return runChild(argc, argv);
    }
    benchmark::RegisterBenchmark("BM_StartToMainWindow", BM_StartToMainWindow, argv[0])
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(10)
        ->Repetitions(3)
        ->ReportAggregatesOnly(true);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
