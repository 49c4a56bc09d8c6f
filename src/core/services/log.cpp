#include "core/services/log.h"

#include "core/model/textrules.h"
#include "core/model/workspace.h"
#include "core/services/clock.h"
#include "core/services/context.h"
#include "core/services/textfile.h"

#include <QFile>
#include <QStringList>

#include <optional>

namespace {

// Today's date as the run's opening and closing lines show it.
QString today(const Context& ctx) {
    return ctx.clock.now().date().toString(QStringLiteral("MM/dd/yyyy"));
}

// A size the probe could not find prints as nothing between its label and "MB".
QString megabytes(const std::optional<long long>& mb) {
    return mb ? QString::number(*mb) : QString();
}

}  // namespace

void modStatus(const Workspace& ws, const Context& ctx, QString& text) {
    if (text.endsWith(QLatin1Char('.'))) {
        text.chop(1);
    }
    const QString line = QLatin1Char('[') +
                         ctx.clock.now().time().toString(QStringLiteral("hh:mm:ss")) +
                         QStringLiteral("]     ") + text + QStringLiteral("\r\n");
    // Opened and closed for each line, so the file can be copied at any moment and the line
    // is on disk when this returns. No text mode: the line already carries its CR LF.
    // A run without a log, as the headless tool's, has no file name.
    if (ws.gLogFile.isEmpty()) {
        return;
    }
    QFile file(ws.gLogFile);
    if (!isReadOnlyFile(ws.gLogFile) && file.open(QIODevice::WriteOnly | QIODevice::Append)) {
        file.write(line.toUtf8());
        file.close();
    }
}

void modStatus(const Workspace& ws, const Context& ctx, const QString& text) {
    QString copy = text;
    modStatus(ws, ctx, copy);
}

void modLogOpen(const Workspace& ws, const Context& ctx, const QString& commandLine) {
    const Environment& env = ctx.env;
    const QString rule(44, QLatin1Char('_'));
    // Blanks rather than an empty text, so the gap still carries its time stamp.
    const QString gap(44, QLatin1Char(' '));
    const QString notFound = QStringLiteral("not found");

    const QStringList header = {
        rule,
        gap,
        QStringLiteral("Desko for Windows rev 4.0"),
        QStringLiteral("Copyright (C) 2026 the Desko developers"),
        rule,
        gap,
        QStringLiteral("Opening Desko40.log on ") + today(ctx),
        QStringLiteral("Windows version is ") + env.gWindowsName + QLatin1Char(' ') +
            env.gWindowsServicePack,
        QStringLiteral("Windows build is ") + env.gWindowsMajor + QLatin1Char('.') +
            env.gWindowsMinor + QLatin1Char('.') + env.gWindowsBuild,
        QStringLiteral("Windows drive is ") + env.gWindowsDrive,
        QStringLiteral("Windows directory is ") + env.gWindowsDir,
        QStringLiteral("System directory is ") + env.gSystemDir,
        QStringLiteral("Desktop directory is ") + modProperCase(env.gDesktopDir),
        QStringLiteral("Start Menu directory is ") + modProperCase(env.gStartMenuDir),
        QStringLiteral("Machine name is ") + env.gMachineName,
        QStringLiteral("IP address is ") + (env.gIpAddress.isEmpty() ? notFound : env.gIpAddress),
        QStringLiteral("Account is ") + env.gAccountName,
        env.gAccountRightsOk ? QStringLiteral("Account has administrative rights")
                             : QStringLiteral("Account does not have administrative rights"),
        QStringLiteral("Total disk space on C: is ") + megabytes(env.gDiskTotalMB) +
            QStringLiteral("MB"),
        QStringLiteral("Free disk space on C: is ") + megabytes(env.gDiskFreeMB) +
            QStringLiteral("MB"),
        QStringLiteral("Physical memory is ") + megabytes(env.gPhysicalMemoryMB) +
            QStringLiteral("MB"),
        QStringLiteral("Default MAPI profile is ") +
            (env.gMapiProfile.isEmpty() ? notFound : env.gMapiProfile),
        env.gOutlookInstalled ? QStringLiteral("Outlook is installed")
                              : QStringLiteral("Outlook is not installed"),
        QStringLiteral("Software build is ") + ws.versionText(),
        QStringLiteral("Software path is ") + modProperCase(ws.gAppPath),
        QStringLiteral("Software base registry key is HKLM\\") + ws.gRegistryBase,
        commandLine.isEmpty()
            ? QStringLiteral("Software startup switch not present")
            : QStringLiteral("Software startup switch is ") + modProperCase(commandLine),
    };
    for (const QString& line : header) {
        modStatus(ws, ctx, line);
    }
}

void modLogClose(const Workspace& ws, const Context& ctx) {
    // Written as a sentence; modStatus cuts the point, so the line ends with the date.
    modStatus(ws, ctx, QStringLiteral("Closing Desko40.log on ") + today(ctx) + QLatin1Char('.'));
}
