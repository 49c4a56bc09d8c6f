#include "cli/commands.h"

#include <QCoreApplication>

int main(int argc, char* argv[]) {
    const QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    QTextStream err(stderr);
    return runCommand(QCoreApplication::arguments().mid(1), out, err);
}
