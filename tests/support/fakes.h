#pragma once

#include "core/model/calendar.h"
#include "core/model/workspace.h"
#include "core/services/clock.h"
#include "core/services/context.h"
#include "core/services/dialogs.h"
#include "core/services/registrystore.h"
#include "shell/session.h"

#include <QDateTime>
#include <QFile>
#include <QStringList>

#include <deque>
#include <functional>
#include <ostream>

// Test failures print texts as text.
inline void PrintTo(const QString& text, std::ostream* os) {
    *os << '"' << text.toStdString() << '"';
}

// A list of texts written as UTF-8 literals.
inline QStringList texts(std::initializer_list<const char*> list) {
    QStringList result;
    for (const char* text : list) {
        result.append(QString::fromUtf8(text));
    }
    return result;
}

// The text of an expected file under tests/persistence/golden, CR LF and all.
inline QString golden(const char* name) {
    QFile file(QStringLiteral(DESKO_GOLDEN_DIR "/") + QString::fromUtf8(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// A clock that shows whatever the test sets.
class FixedClock final : public Clock {
public:
    QDateTime time = QDateTime(QDate(2000, 3, 21), QTime(9, 14, 3));
    QDateTime now() const override { return time; }
};

// Message boxes and file dialogs answered from a script; every text and every file dialog
// shown is kept. Each character is 7 pixels wide, so a test can tell where a message breaks.
class ScriptedDialogs final : public Dialogs {
public:
    struct Shown {
        QString text;
        MsgIcon icon;
        MsgButtons buttons;
        int defaultButton;
    };
    enum class FileKind { Open, Save };
    struct FileShown {
        FileKind kind;
        FileDialog request;
    };
    std::deque<MsgAnswer> answers;
    std::vector<Shown> shown;
    // The file dialogs' answers in turn: a name, or nothing for Cancel. When they run out,
    // every further file dialog is cancelled.
    std::deque<std::optional<QString>> fileAnswers;
    std::vector<FileShown> filesShown;
    // Runs while a box is up, so a test can see the state the user sees it in.
    std::function<void()> whileShown;

    MsgAnswer messageBox(const QString& text, MsgIcon icon, MsgButtons buttons,
                         int defaultButton) override {
        shown.push_back({text, icon, buttons, defaultButton});
        if (whileShown) {
            whileShown();
        }
        if (answers.empty()) {
            return buttons == MsgButtons::OK ? MsgAnswer::OK : MsgAnswer::Cancel;
        }
        const MsgAnswer answer = answers.front();
        answers.pop_front();
        return answer;
    }
    double textWidth(const QString& text) const override { return 7.0 * text.size(); }
    std::optional<QString> openFileDialog(const FileDialog& request) override {
        return fileDialog(FileKind::Open, request);
    }
    std::optional<QString> saveFileDialog(const FileDialog& request) override {
        return fileDialog(FileKind::Save, request);
    }

private:
    std::optional<QString> fileDialog(FileKind kind, const FileDialog& request) {
        filesShown.push_back({kind, request});
        if (fileAnswers.empty()) {
            return std::nullopt;
        }
        const bool chosen = fileAnswers.front().has_value();
        const QString name = fileAnswers.front().value_or(QString());
        fileAnswers.pop_front();
        if (!chosen) {
            return std::nullopt;
        }
        return name;
    }
};

// A workspace in the given month with its name tables and calendar; given a home, also with
// its working file and log there, as after a start in that folder.
inline void openMonth(Workspace& ws, int year, int month, const QString& home = QString()) {
    if (!home.isEmpty()) {
        modInitSession(ws, home);
    }
    modInitNameTables(ws);
    ws.gCurrentYear = year;
    ws.gCurrentMonth = month;
    modSetupMonth(ws);
}

// The services of a test run, wired together.
struct TestServices {
    FixedClock clock;
    ScriptedDialogs dialogs;
    MemoryRegistryStore registry;
    Context ctx{clock, dialogs, registry, {}};
};
