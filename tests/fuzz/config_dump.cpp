#include "fuzzing.h"

#include "persistence/configdump.h"
#include "persistence/scheduleformat.h"

namespace {

// The working file as the workspace that a run reads from the dump saves it.
QString openDump(const QString& dump) {
    HeadlessRun run;
    run.ws.gConfigFile = scratchPath(QStringLiteral("Desko40.ini"));
    run.ws.gLogFile = scratchPath(QStringLiteral("Desko40.log"));
    run.dialogs.fileAnswer = dump;
    require(openConfigurationDump(run.ws, run.ctx), "a chosen dump is opened");
    run.dialogs.fileAnswer = scratchPath(QStringLiteral("made.dmp"));
    require(createConfigurationDump(run.ws, run.ctx), "a dump is made where chosen");
    return scheduleFileText(run.ws, FileKind::Working);
}

}  // namespace

// The configuration dump: any file opened as a dump restores a working file and a log, and
// the dump made of them right after opens to the same workspace.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString restored =
        openDump(scratchFile(QStringLiteral("chosen.dmp"), inputBytes(data, size)));
    require(openDump(scratchPath(QStringLiteral("made.dmp"))) == restored,
            "a dump made right after a dump was opened opens to the same workspace");
    return 0;
}
