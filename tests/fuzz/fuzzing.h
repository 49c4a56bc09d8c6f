#pragma once

#include "core/model/workspace.h"
#include "core/services/clock.h"
#include "core/services/context.h"
#include "core/services/dialogs.h"
#include "core/services/registrystore.h"

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>

// What the fuzz targets share. Each target is one function of the bytes it is given, which
// libFuzzer calls in the fuzz build and the ordinary suite calls on the files of a folder.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

// The input's bytes as the program would find them in a file.
QByteArray inputBytes(const std::uint8_t* data, std::size_t size);

// A promise of the program that the input broke: stops the run, which libFuzzer keeps as a
// crash with its input.
[[noreturn]] void broken(const char* promise);
inline void require(bool kept, const char* promise) {
    if (!kept) {
        broken(promise);
    }
}

// A folder of the process's own for the files a target reads and writes; the name in it.
QString scratchPath(const QString& name);
// Writes the bytes into the scratch folder under the name, replacing what was there; the
// file's full name.
QString scratchFile(const QString& name, const QByteArray& bytes);

// A clock that always shows the same moment, so that a run repeats.
class StillClock final : public Clock {
public:
    QDateTime now() const override;
    void sleep(int) override {}
};

// A user who answers every question Yes and every message OK, saves where the target says,
// and cancels everything else.
class YesDialogs final : public Dialogs {
public:
    MsgAnswer messageBox(const QString&, MsgIcon, MsgButtons buttons, int) override;
    double textWidth(const QString& text) const override { return 7.0 * text.size(); }
    std::optional<QString> openFileDialog(const FileDialog&) override { return fileAnswer; }
    std::optional<QString> saveFileDialog(const FileDialog&) override { return fileAnswer; }

    std::optional<QString> fileAnswer;
};

// A run of the program without a window: a fresh workspace in the scratch folder with its
// name tables and a month, the services wired, the log and the working file nowhere unless
// a target names them, the random sequence from a fixed start.
struct HeadlessRun {
    HeadlessRun();
    StillClock clock;
    YesDialogs dialogs;
    MemoryRegistryStore registry;
    Context ctx{clock, dialogs, registry, {}, {}, {}};
    Workspace ws;
};

// The whole road of a schedule file as a user takes it: open as File Open does, look the
// month over in the review with its balance, the day editor and the day pickers, print every
// report, export through every channel and make the calendar files; then generate with each
// engine and look the month over, and print and export the last schedule. The reports go to
// a printer that measures by rule, the messages and the files into memory. What the road
// did, for callers that check it.
struct RoadResult {
    bool opened = false;
    int year = 0;  // the month the file opened in
    int month = 0;
    int schedulesGenerated = 0;
    int unfilledPositions = 0;  // positions of working days an engine left without an agent
    int documents = 0;          // documents with something on them
    int messages = 0;           // mail and meeting requests handed to the transport
};
RoadResult travelWholeRoad(const QString& path);
