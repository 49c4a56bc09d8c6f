#include "persistence/configdump.h"

#include "core/model/workspace.h"
#include "core/services/clock.h"
#include "core/services/context.h"
#include "core/services/dialogs.h"
#include "core/services/textfile.h"
#include "persistence/backupring.h"
#include "persistence/workspacefile.h"

#include <QStringList>

namespace {

const QString kSeparator = QStringLiteral("<SNIP>");
const QString kLineEnd = QStringLiteral("\r\n");

// A text's lines as a line reader gives them: a line ends at CR LF, CR or LF, and a final
// line end opens no line of its own. A text without a line gives one empty line, as a copy
// that reads before it tests for the end does.
QStringList linesOf(const QString& text) {
    QStringList lines = textLines(text);
    if (lines.size() > 1 && lines.last().isEmpty()) {
        lines.removeLast();
    }
    return lines;
}

QString textOf(const QStringList& lines) {
    return lines.isEmpty() ? kLineEnd : lines.join(kLineEnd) + kLineEnd;
}

// Both dialogs offer dump files first, on the desktop, under the same name.
FileDialog dumpDialog(const Context& ctx, const QString& title) {
    FileDialog request;
    request.title = title;
    request.filter = QStringLiteral("Configuration dump files (*.dmp)|*.dmp|All files (*.*)|*.*");
    request.filterIndex = 1;
    request.initialDir = ctx.env.gDesktopDir;
    request.fileName = QStringLiteral("Desko40.dmp");
    request.promptOverwrite = true;
    return request;
}

}  // namespace

QString dumpText(const QString& workingFile, const QString& log) {
    return textOf(linesOf(workingFile)) + kLineEnd + kSeparator + kLineEnd + kLineEnd +
           textOf(linesOf(log));
}

RestoredFiles restoredFiles(const QString& dump) {
    const QStringList lines = linesOf(dump);
    const qsizetype separator = lines.indexOf(kSeparator);
    if (separator < 0) {
        return {textOf(lines), kLineEnd};
    }
    return {textOf(lines.mid(0, separator + 1)), textOf(lines.mid(separator + 1))};
}

bool createConfigurationDump(const Workspace& ws, Context& ctx) {
    const std::optional<QString> chosen = ctx.dialogs.saveFileDialog(
        dumpDialog(ctx, QStringLiteral("Create a configuration dump file...")));
    if (!chosen) {
        return false;
    }
    // A file that cannot be read counts as empty; one that cannot be written is left as it
    // was. The dump is for diagnosis: neither is worth a word.
    writeTextFile(*chosen, dumpText(readTextFile(ws.gConfigFile).value_or(QString()),
                                    readTextFile(ws.gLogFile).value_or(QString())));
    return true;
}

bool openConfigurationDump(Workspace& ws, Context& ctx) {
    const std::optional<QString> chosen = ctx.dialogs.openFileDialog(
        dumpDialog(ctx, QStringLiteral("Open a configuration dump file...")));
    if (!chosen) {
        return false;
    }
    // Any text file is taken for a dump. The whole dump is read before either file is
    // written, so a dump chosen from the program's own folder survives its restoring.
    const RestoredFiles files = restoredFiles(readTextFile(*chosen).value_or(QString()));
    keepBackup(ws.gConfigFile, ctx.clock.now());
    writeTextFile(ws.gConfigFile, files.workingFile);
    writeTextFile(ws.gLogFile, files.log);
    modLoadWorkspace(ws, ctx, QString());
    return true;
}
