#include "cli/commands.h"
#include "core/services/launch.h"

#include <QCoreApplication>

int main(int argc, char* argv[]) {
    const QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    QTextStream err(stderr);
    // The tool's folder and random state, as the program takes them from its environment.
    return runCommand(QCoreApplication::arguments().mid(1), out, err, launchFromEnvironment());
}
