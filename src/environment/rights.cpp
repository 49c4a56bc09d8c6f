#include "environment/rights.h"

#include "core/model/session.h"
#include "core/model/workspace.h"
#include "core/services/context.h"
#include "core/services/msgbox.h"
#include "core/services/registryapi.h"
#include "core/services/textfile.h"

#include <QFile>
#include <QStringList>

namespace {

// The warning, its paragraphs apart; what the user may not reach, and what may be lost.
QString warning(const QString& place, const QString& lost, const Dialogs& dialogs) {
    const QStringList paragraphs = {
        QStringLiteral("Your current user account does not appear to have the rights "
                       "necessary to run Desko for Windows.  Specifically, you may not be able "
                       "to read or write ") +
            place,
        QStringLiteral("Desko for Windows will continue to load, but you may not be able save ") +
            lost,
        QStringLiteral("Please log in as the Administrator, or add your current user account to "
                       "the Local Administrators group."),
    };
    QStringList wrapped;
    for (const QString& paragraph : paragraphs) {
        wrapped.append(modWrapMessage(paragraph, dialogs));
    }
    return wrapped.join(QStringLiteral("\r\n\r\n"));
}

// The first line of the file, as it was written.
QString firstLine(const QString& path) {
    return textLines(readTextFile(path).value_or(QString())).constFirst();
}

// A file left read-only is made writable first, so that it goes.
void deleteFile(const QString& path) {
    QFile::setPermissions(path, QFile::permissions(path) | QFile::WriteOwner);
    QFile::remove(path);
}

}  // namespace

bool modCheckRights(const Workspace& ws, Context& ctx) {
    const QString word = QStringLiteral("Test");
    const QString ownKey = ws.gRegistryBase + QLatin1Char('\\') + kRightsCheckKey;
    const QString settingsKey = ws.gRegistryBase + QStringLiteral("\\Settings");
    const QString file = ws.gAppPath + QStringLiteral("/Test.txt");

    modRegSetValue(ctx.registry, kHkeyLocalMachine, ownKey, word, word);
    modRegSetValue(ctx.registry, kHkeyLocalMachine, settingsKey, word, word);
    writeTextFile(file, word + QStringLiteral("\r\n"));
    const bool storeWritten =
        modRegGetValue(ctx.registry, kHkeyLocalMachine, ownKey, word) == word &&
        modRegGetValue(ctx.registry, kHkeyLocalMachine, settingsKey, word) == word;
    const bool fileWritten = firstLine(file) == word;
    modRegDeleteKey(ctx.registry, kHkeyLocalMachine, ownKey);
    modRegDeleteValue(ctx.registry, kHkeyLocalMachine, settingsKey, word);
    deleteFile(file);

    if (!storeWritten) {
        ctx.dialogs.messageBox(
            warning(QStringLiteral("from the registry."),
                    QStringLiteral("agent information or program settings."), ctx.dialogs),
            MsgIcon::Stop, MsgButtons::OK);
    } else if (!fileWritten) {
        ctx.dialogs.messageBox(
            warning(QStringLiteral("to the program directory."),
                    QStringLiteral("program settings or log files."), ctx.dialogs),
            MsgIcon::Stop, MsgButtons::OK);
    }
    return storeWritten && fileWritten;
}
