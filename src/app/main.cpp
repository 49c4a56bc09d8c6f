#include "core/services/launch.h"
#include "environment/logo.h"
#include "shell/forms/application.h"

#include <QApplication>

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    // The desktop knows the program's windows by its desktop file and shows its icon.
    QGuiApplication::setDesktopFileName(QStringLiteral("desko40"));
    QApplication::setWindowIcon(logoIcon());
    return runProgram(app, launchFromEnvironment());
}
