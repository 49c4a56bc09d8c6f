#include "cli/session.h"

#include "core/model/calendar.h"
#include "core/model/session.h"
#include "persistence/profilefile.h"
#include "persistence/scheduleformat.h"

#include <QFileInfo>

MsgAnswer ConsoleDialogs::messageBox(const QString& text, MsgIcon, MsgButtons buttons, int) {
    err_ << "desko40-cli: " << subject_ << ": " << text << '\n';
    return buttons == MsgButtons::YesNo || buttons == MsgButtons::YesNoCancel ? MsgAnswer::Yes
                                                                              : MsgAnswer::OK;
}

Session::Session(QTextStream& err, const QString& subject, const Launch& launch)
    : dialogs(err, subject), ctx{clock, dialogs, registry, {}, {}, launch} {
    modInitNameTables(ws);
    modInitSession(ws, launch.home);
    ws.gLogFile.clear();
    ws.gConfigFile.clear();
}

int fail(QTextStream& err, const QString& path, const QString& what) {
    err << "desko40-cli: " << path << ": " << what << '\n';
    return 1;
}

bool readInput(QTextStream& err, const QString& path) {
    const QFileInfo info(path);
    if (!info.isFile() || !info.isReadable()) {
        fail(err, path, QStringLiteral("cannot be read"));
        return false;
    }
    Workspace ws;
    modInitNameTables(ws);
    for (const RowsNotRead& cut : rowsNotRead(ws, ProfileFile::read(path))) {
        err << "desko40-cli: " << path << ": [" << cut.section << "] holds " << cut.held
            << " rows, of which only the first " << cut.read << " were read\n";
    }
    return true;
}
