#include "core/services/context.h"
#include "shell/forms/application.h"

#include <QApplication>

namespace {

// What the environment asks of this run: its folder, its first random state and its splash.
Launch launchFromEnvironment() {
    Launch launch;
    launch.home = qEnvironmentVariable("DESKO_HOME");
    if (launch.home.isEmpty()) {
        launch.home = QCoreApplication::applicationDirPath();
    }
    launch.seed = parseSeed(qEnvironmentVariable("DESKO_SEED"));
    bool ok = false;
    const int splashMs = qEnvironmentVariableIntValue("DESKO_SPLASH_MS", &ok);
    if (ok && splashMs >= 0) {
        launch.splashMs = splashMs;
    }
    return launch;
}

}  // namespace

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    return runProgram(app, launchFromEnvironment());
}
