#pragma once

#include "core/model/workspace.h"
#include "core/services/clock.h"
#include "core/services/context.h"
#include "core/services/dialogs.h"
#include "core/services/registrystore.h"

#include <QTextStream>

#include <optional>

// What the tool's commands share.

// The tool's message boxes are lines on standard error; a line has no width to keep.
class ConsoleDialogs final : public Dialogs {
public:
    explicit ConsoleDialogs(QTextStream& err, QString subject)
        : err_(err), subject_(std::move(subject)) {}
    // Every question is answered Yes: the command line said what to do.
    MsgAnswer messageBox(const QString& text, MsgIcon, MsgButtons buttons, int) override;
    double textWidth(const QString&) const override { return 0.0; }
    // Every save dialog is answered with the file the command line named; without one, it
    // is cancelled.
    std::optional<QString> saveFileDialog(const FileDialog&) override { return savedFile; }

    std::optional<QString> savedFile;

private:
    QTextStream& err_;
    QString subject_;
};

// A workspace as a run of the program has it before reading any file. The tool leaves no
// trace on the machine but the journal of the meeting requests it sent: no log and no
// working file, and the settings store lives only as long as the command.
struct Session {
    Session(QTextStream& err, const QString& subject, const Launch& launch);
    Workspace ws;
    SystemClock clock;
    ConsoleDialogs dialogs;
    MemoryRegistryStore registry;
    Context ctx;
};

// Tells on err that the file failed as `what` says; the exit status of a failed command.
int fail(QTextStream& err, const QString& path, const QString& what);

// Whether the path names a file the tool can read.
bool readable(const QString& path);
