#include "core/services/launch.h"
#include "shell/forms/application.h"

#include <QApplication>

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    return runProgram(app, launchFromEnvironment());
}
