#include "cli/session.h"

#include "core/model/calendar.h"
#include "core/model/session.h"

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

bool readable(const QString& path) {
    const QFileInfo info(path);
    return info.isFile() && info.isReadable();
}
