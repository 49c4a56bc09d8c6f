#include "fuzzing.h"

#include "core/services/textfile.h"
#include "persistence/profilefile.h"
#include "persistence/scheduleformat.h"

#include <algorithm>

namespace {

// Whether the saved text can carry every text of the workspace: each field of a row is one
// that a row keeps whole, and each value reads back as its line writes it.
bool carriesEveryText(const Workspace& ws, const QString& saved) {
    const auto whole = [](const QString& field) {
        return fitsInAField(field) && field != QStringLiteral("***empty***");
    };
    const auto allWhole = [&](const auto& fields) {
        return std::all_of(fields.begin(), fields.end(), whole);
    };
    bool carried = allWhole(ws.gAgentLast) && allWhole(ws.gAgentFirst) &&
                   allWhole(ws.gAgentEmail) && allWhole(ws.gSchedule);
    for (const auto& texts : ws.gShiftText) {
        carried = carried && allWhole(texts);
    }
    for (const QString& line : saved.split(QStringLiteral("\r\n"))) {
        const QString value = line.mid(line.indexOf(QLatin1Char('=')) + 1);
        carried = carried && storedText(value) == value;
    }
    return carried;
}

// A workspace read from the file's bytes as the kind, and its file as saved; the saved text
// stays empty when the file was refused, or when the format cannot carry its texts.
QString readAndSaved(const QByteArray& bytes, FileKind kind) {
    HeadlessRun run;
    Workspace& ws = run.ws;
    ProfileFile file(decodeText(bytes));
    const ReadResult read = readScheduleFile(ws, file, kind);
    const auto agents = static_cast<std::size_t>(ws.gAgentCount) + 1;
    require(ws.gAgentKey.size() == agents && ws.gAgentFirstKey.size() == agents,
            "every agent read has its keys");
    // The defaults go back into the file where they were missing, and read as given.
    for (const auto& [key, value] : read.defaults) {
        file.setValue(QStringLiteral("Titles"), key, value);
        require(ProfileFile(file.text()).value(QStringLiteral("Titles"), key) == value,
                "a value written into a profile file reads back");
    }
    if (read.refused) {
        return QString();
    }
    const QString saved = scheduleFileText(ws, kind);
    return carriesEveryText(ws, saved) ? saved : QString();
}

}  // namespace

// The schedule file and the working file: the bytes decoded, the profile file read, each
// kind read into a workspace, the agents' keys built, and what a read saves read back the
// same wherever the format can carry the texts.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes = inputBytes(data, size);
    for (const FileKind kind : {FileKind::Working, FileKind::Schedule}) {
        const QString saved = readAndSaved(bytes, kind);
        if (!saved.isEmpty()) {
            require(readAndSaved(saved.toUtf8(), kind) == saved,
                    "a file read and saved is read back the same");
        }
    }
    return 0;
}
