#pragma once

#include "core/model/workspace.h"
#include "core/services/clock.h"
#include "core/services/context.h"
#include "core/services/dialogs.h"
#include "core/services/registrystore.h"

#include <QDateTime>
#include <QStringList>

#include <deque>
#include <functional>
#include <optional>
#include <ostream>
#include <vector>

// Test failures print texts as text.
void PrintTo(const QString& text, std::ostream* os);

// A list of texts written as UTF-8 literals.
QStringList texts(std::initializer_list<const char*> list);

// The boxes' answers named in turn, as in "Yes No Cancel".
std::deque<MsgAnswer> answersNamed(const QString& names);

// The text of an expected file under tests/persistence/golden, CR LF and all.
QString golden(const char* name);

// The whole text of a file, empty when there is none.
QString fileText(const QString& path);

// A copy of the example office's schedule file in the folder, as "chosen.dko", holding the
// engine 3 and the print boxes 000111 and the version given; its full name.
QString exampleSchedule(const QString& folder, const char* version = "4.0.10");

// Whether the log holds the line, after its time stamp.
bool logged(const Workspace& ws, const QString& line);

// The log's lines, each after its time stamp, as a transcript tells them: "log ...".
QStringList logLines(const Workspace& ws);

// Compares what a case showed and wrote, line by line, with the case "== name" of a golden
// file under tests/: the lines after that heading up to the next one. The home folder, as
// given and as the log writes it, reads HOME. With DESKO_TRANSCRIPTS set, each transcript made
// is also appended to the file it names, to write a new case's text from.
void expectTranscript(const QStringList& lines, const char* file, const QString& name,
                      const QString& home = QString());

// A clock that shows whatever the test sets.
class FixedClock final : public Clock {
public:
    QDateTime time = QDateTime(QDate(2000, 3, 21), QTime(9, 14, 3));
    QDateTime now() const override { return time; }
    // Time passes at once.
    void sleep(int milliseconds) override { time = time.addMSecs(milliseconds); }
};

// Message boxes and file dialogs answered from a script; every box and every file dialog
// shown is kept. Each character is 7 pixels wide, so a test can tell where a message breaks.
class ScriptedDialogs final : public Dialogs {
public:
    // Every box, file dialog, input box and chooser in turn, with the answer given, as lines
    // of a transcript; a test may add lines of its own between them.
    QStringList said;
    struct Shown {
        QString text;
        MsgIcon icon;
        MsgButtons buttons;
        int defaultButton;
    };
    enum class FileKind { Open, Save, Folder };
    struct FileShown {
        FileKind kind;
        FileDialog request;
    };
    // The boxes' answers in turn; when they run out, OK or Cancel.
    std::deque<MsgAnswer> answers;
    std::vector<Shown> shown;
    // The file dialogs' answers in turn: a name, or nothing for Cancel. When they run out,
    // every further file dialog is cancelled.
    std::deque<std::optional<QString>> fileAnswers;
    std::vector<FileShown> filesShown;
    // The input boxes' answers in turn, nothing for Cancel; when they run out, Cancel. The
    // prompts and proposals shown, in turn.
    std::deque<std::optional<QString>> inputAnswers;
    std::vector<std::pair<QString, QString>> inputsShown;
    // The choosers' answers in turn, an item's index or nothing for Cancel; when they run
    // out, Cancel.
    std::deque<std::optional<int>> choiceAnswers;
    // Runs while a box is up, so a test can see the state the user sees it in.
    std::function<void()> whileShown;

    MsgAnswer messageBox(const QString& text, MsgIcon icon, MsgButtons buttons,
                         int defaultButton) override;
    double textWidth(const QString& text) const override { return 7.0 * text.size(); }
    std::optional<QString> openFileDialog(const FileDialog& request) override;
    std::optional<QString> saveFileDialog(const FileDialog& request) override;
    std::optional<QString> folderDialog(const FileDialog& request) override;
    std::optional<QString> inputBox(const QString& prompt, const QString& proposal) override;
    std::optional<int> chooseItem(const QString& prompt, const QStringList& items) override;

    // The texts of the boxes shown, each as the box showed it, broken to its width.
    QStringList texts() const;
    // The box texts expected, broken as the boxes break them.
    QStringList wrapped(const QStringList& messages) const;

private:
    std::optional<QString> fileDialog(FileKind kind, const FileDialog& request);
};

// A workspace in the given month with its name tables and calendar; given a home, also with
// its working file and log there, as after a start in that folder.
void openMonth(Workspace& ws, int year, int month, const QString& home = QString());

// The services of a test run, wired together.
struct TestServices {
    FixedClock clock;
    ScriptedDialogs dialogs;
    MemoryRegistryStore registry;
    Context ctx{clock, dialogs, registry, {}, {}, {}};
};
