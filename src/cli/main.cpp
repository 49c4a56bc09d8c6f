#include "cli/commands.h"
#include "core/services/context.h"

#include <QCoreApplication>

int main(int argc, char* argv[]) {
    const QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    QTextStream err(stderr);
    // The tool's folder and random state, as the program takes them from its environment.
    Launch launch;
    launch.home = qEnvironmentVariable("DESKO_HOME");
    if (launch.home.isEmpty()) {
        launch.home = QCoreApplication::applicationDirPath();
    }
    launch.seed = parseSeed(qEnvironmentVariable("DESKO_SEED"));
    return runCommand(QCoreApplication::arguments().mid(1), out, err, launch);
}
