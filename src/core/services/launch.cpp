#include "core/services/launch.h"

#include "core/services/randomsequence.h"
#include "core/services/textfile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

// The mail configuration as msmtp finds it: ~/.msmtprc when that exists, else its XDG file
// when that exists, else ~/.msmtprc all the same.
QString mailConfigPath() {
    if (QString path = qEnvironmentVariable("DESKO_MAIL_CONFIG"); !path.isEmpty()) {
        return path;
    }
    const QString msmtprc = QDir::homePath() + QStringLiteral("/.msmtprc");
    QString configHome = qEnvironmentVariable("XDG_CONFIG_HOME");
    if (configHome.isEmpty()) {
        configHome = QDir::homePath() + QStringLiteral("/.config");
    }
    const QString xdg = configHome + QStringLiteral("/msmtp/config");
    return !QFileInfo::exists(msmtprc) && QFileInfo(xdg).isFile() ? xdg : msmtprc;
}

// The data folder that an installation put beside the program's folder, as share/desko40
// beside bin/; empty for a program that is not installed, as in its build tree.
QString installedDataFolder(const QString& programFolder) {
    const QString folder = programFolder + QStringLiteral("/" DESKO_DATA_FROM_PROGRAM);
    return QFileInfo(folder).isDir() ? QDir::cleanPath(folder) : QString();
}

QString variableOr(const char* name, const QString& fallback) {
    const QString value = qEnvironmentVariable(name);
    return value.isEmpty() ? fallback : value;
}

}  // namespace

Launch launchFromEnvironment() {
    Launch launch;
    // An installed program's own folder is not the user's to write: the working file and
    // the log go to the user's data folder. In the build tree they stay beside the program,
    // and the help is there too.
    const QString dataFolder = installedDataFolder(QCoreApplication::applicationDirPath());
    const QString programFolder =
        dataFolder.isEmpty() ? QCoreApplication::applicationDirPath() : dataFolder;
    launch.helpFile = programFolder + QStringLiteral("/help/index.html");
    if (const QString home = qEnvironmentVariable("DESKO_HOME"); !home.isEmpty()) {
        launch.home = home;
    } else if (dataFolder.isEmpty()) {
        launch.home = programFolder;
    } else {
        launch.home = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                      QStringLiteral("/desko");
        launch.homeIsUserFolder = true;
    }
    launch.seed = parseSeed(qEnvironmentVariable("DESKO_SEED"));
    bool ok = false;
    const int splashMs = qEnvironmentVariableIntValue("DESKO_SPLASH_MS", &ok);
    if (ok && splashMs >= 0) {
        launch.splashMs = splashMs;
    }
    launch.mailConfig = mailConfigPath();
    launch.addressBook = variableOr(
        "DESKO_ADDRESSBOOK", QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                                 QStringLiteral("/desko/addressbook"));
    launch.pdfDir = variableOr("DESKO_PDF_DIR",
                               QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    // A state folder that is not given as an absolute path does not count.
    QString stateHome = qEnvironmentVariable("XDG_STATE_HOME");
    if (!QDir::isAbsolutePath(stateHome)) {
        stateHome = QDir::homePath() + QStringLiteral("/.local/state");
    }
    launch.windowPlaceFile = stateHome + QStringLiteral("/desko/window.ini");
    return launch;
}

void prepareUserFolder(const Launch& launch) {
    if (!launch.homeIsUserFolder) {
        return;
    }
    QDir().mkpath(launch.home);
    const QString workingFile = launch.home + QStringLiteral("/Desko40.ini");
    if (!QFileInfo::exists(workingFile) &&
        !QFileInfo::exists(launch.home + QStringLiteral("/Desko40.log"))) {
        writeTextFile(workingFile, QString());
    }
}
