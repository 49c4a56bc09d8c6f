#include "cli/commands.h"
#include "core/services/launch.h"

#include <QCoreApplication>
#include <QGuiApplication>

#include <cstdio>
#include <memory>

int main(int argc, char* argv[]) {
    // Printing measures text in the machine's fonts, which takes the graphical application;
    // the tool shows no window, so it needs no display.
    const bool prints = argc > 1 && qstrcmp(argv[1], "print") == 0;
    std::unique_ptr<QCoreApplication> app;
    if (prints) {
        if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
            qputenv("QT_QPA_PLATFORM", "offscreen");
        }
        // The tool's standard error carries its own lines; the toolkit's notes about the
        // session it runs in are no news to its user.
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
            if (type == QtCriticalMsg || type == QtFatalMsg) {
                std::fprintf(stderr, "%s\n", qUtf8Printable(text));
            }
        });
        app = std::make_unique<QGuiApplication>(argc, argv);
    } else {
        app = std::make_unique<QCoreApplication>(argc, argv);
    }
    QTextStream out(stdout);
    QTextStream err(stderr);
    // The tool's folder and random state, as the program takes them from its environment.
    return runCommand(QCoreApplication::arguments().mid(1), out, err, launchFromEnvironment());
}
