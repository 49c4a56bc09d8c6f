#include "fakes.h"

#include "core/model/calendar.h"
#include "core/model/session.h"
#include "core/services/msgbox.h"
#include "core/services/textfile.h"

#include <QFile>

void PrintTo(const QString& text, std::ostream* os) {
    *os << '"' << text.toStdString() << '"';
}

QStringList texts(std::initializer_list<const char*> list) {
    QStringList result;
    for (const char* text : list) {
        result.append(QString::fromUtf8(text));
    }
    return result;
}

QString golden(const char* name) {
    QFile file(QStringLiteral(DESKO_GOLDEN_DIR "/") + QString::fromUtf8(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString fileText(const QString& path) {
    return readTextFile(path).value_or(QString());
}

QString exampleSchedule(const QString& folder, const char* version) {
    QString example = fileText(QStringLiteral(DESKO_EXAMPLES_DIR "/office/Example Office.dko"));
    example.replace(QStringLiteral("Printer Format=111000"),
                    QStringLiteral("Printer Format=000111"));
    example.replace(QStringLiteral("Scheduling Engine=0"), QStringLiteral("Scheduling Engine=3"));
    example.replace(QStringLiteral("Version=4.0.10"),
                    QStringLiteral("Version=") + QString::fromUtf8(version));
    const QString path = folder + QStringLiteral("/chosen.dko");
    writeTextFile(path, example);
    return path;
}

bool logged(const Workspace& ws, const QString& line) {
    return fileText(ws.gLogFile).contains(QStringLiteral("]     ") + line + QStringLiteral("\r\n"));
}

MsgAnswer ScriptedDialogs::messageBox(const QString& text, MsgIcon icon, MsgButtons buttons,
                                      int defaultButton) {
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

std::optional<QString> ScriptedDialogs::openFileDialog(const FileDialog& request) {
    return fileDialog(FileKind::Open, request);
}

std::optional<QString> ScriptedDialogs::saveFileDialog(const FileDialog& request) {
    return fileDialog(FileKind::Save, request);
}

std::optional<QString> ScriptedDialogs::folderDialog(const FileDialog& request) {
    return fileDialog(FileKind::Folder, request);
}

namespace {

// The next of the scripted answers, nothing when they have run out.
template <typename T>
std::optional<T> next(std::deque<std::optional<T>>& answers) {
    if (answers.empty()) {
        return std::nullopt;
    }
    const std::optional<T> answer = answers.front();
    answers.pop_front();
    return answer;
}

}  // namespace

std::optional<QString> ScriptedDialogs::fileDialog(FileKind kind, const FileDialog& request) {
    filesShown.push_back({kind, request});
    return next(fileAnswers);
}

std::optional<QString> ScriptedDialogs::inputBox(const QString& prompt, const QString& proposal) {
    inputsShown.emplace_back(prompt, proposal);
    return next(inputAnswers);
}

std::optional<int> ScriptedDialogs::chooseItem(const QString& prompt, const QStringList& items) {
    choicesShown.emplace_back(prompt, items);
    return next(choiceAnswers);
}

QStringList ScriptedDialogs::texts() const {
    QStringList result;
    for (const Shown& box : shown) {
        result.append(box.text);
    }
    return result;
}

QStringList ScriptedDialogs::wrapped(const QStringList& messages) const {
    QStringList result;
    for (const QString& message : messages) {
        result.append(modWrapMessage(message, *this));
    }
    return result;
}

void openMonth(Workspace& ws, int year, int month, const QString& home) {
    if (!home.isEmpty()) {
        modInitSession(ws, home);
    }
    modInitNameTables(ws);
    ws.gCurrentYear = year;
    ws.gCurrentMonth = month;
    modSetupMonth(ws);
}
