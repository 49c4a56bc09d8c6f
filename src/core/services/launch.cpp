#include "core/services/launch.h"

#include "core/services/randomsequence.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

// The mail configuration as msmtp finds it: its XDG file when that exists, else ~/.msmtprc.
QString mailConfigPath() {
    if (QString path = qEnvironmentVariable("DESKO_MAIL_CONFIG"); !path.isEmpty()) {
        return path;
    }
    QString configHome = qEnvironmentVariable("XDG_CONFIG_HOME");
    if (configHome.isEmpty()) {
        configHome = QDir::homePath() + QStringLiteral("/.config");
    }
    const QString xdg = configHome + QStringLiteral("/msmtp/config");
    if (QFileInfo(xdg).isFile()) {
        return xdg;
    }
    return QDir::homePath() + QStringLiteral("/.msmtprc");
}

QString variableOr(const char* name, const QString& fallback) {
    const QString value = qEnvironmentVariable(name);
    return value.isEmpty() ? fallback : value;
}

}  // namespace

Launch launchFromEnvironment() {
    Launch launch;
    launch.home = variableOr("DESKO_HOME", QCoreApplication::applicationDirPath());
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
    return launch;
}
