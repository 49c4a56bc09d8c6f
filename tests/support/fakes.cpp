#include "fakes.h"

#include "core/model/calendar.h"
#include "core/model/session.h"
#include "core/model/textrules.h"
#include "core/services/msgbox.h"
#include "core/services/textfile.h"

#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

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

std::deque<MsgAnswer> answersNamed(const QString& names) {
    const QStringList all = texts({"OK", "Cancel", "Yes", "No"});  // as MsgAnswer
    std::deque<MsgAnswer> answers;
    for (const QString& name : names.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        answers.push_back(static_cast<MsgAnswer>(all.indexOf(name)));
    }
    return answers;
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

QStringList logLines(const Workspace& ws) {
    QStringList lines;
    for (const QString& line : textLines(fileText(ws.gLogFile))) {
        if (!line.isEmpty()) {
            lines.append(QStringLiteral("log ") + line.mid(15));
        }
    }
    return lines;
}

void expectTranscript(const QStringList& lines, const char* file, const QString& name,
                      const QString& home) {
    const QString heading = QStringLiteral("== ") + name;
    QStringList expected =
        textLines(fileText(QStringLiteral(DESKO_TESTS_DIR "/") + QString::fromUtf8(file)));
    const qsizetype at = expected.indexOf(heading);
    EXPECT_GE(at, 0) << file << " has no case " << name.toStdString();
    expected = expected.mid(at + 1);
    expected = expected.mid(0, expected.indexOf(QRegularExpression(QStringLiteral("== .*"))));
    while (!expected.isEmpty() && expected.last().isEmpty()) {
        expected.removeLast();
    }
    QString actual = lines.join(QLatin1Char('\n'));
    if (!home.isEmpty()) {
        actual.replace(home, QStringLiteral("HOME"))
            .replace(modProperCase(home), QStringLiteral("HOME"));
    }
    if (const QString out = qEnvironmentVariable("DESKO_TRANSCRIPTS"); !out.isEmpty()) {
        QFile dump(out);
        if (dump.open(QIODevice::Append)) {
            dump.write((heading + QLatin1Char('\n') + actual + QStringLiteral("\n\n")).toUtf8());
        }
    }
    EXPECT_EQ(actual.toStdString(), expected.join(QLatin1Char('\n')).toStdString())
        << file << ": " << name.toStdString();
}

MsgAnswer ScriptedDialogs::messageBox(const QString& text, MsgIcon icon, MsgButtons buttons,
                                      int defaultButton) {
    static const char* const icons[] = {"no icon", "Stop", "Question", "Exclamation",
                                        "Information"};
    static const char* const buttonSets[] = {"OK", "OKCancel", "YesNo", "YesNoCancel"};
    static const char* const answerNames[] = {"OK", "Cancel", "Yes", "No"};
    shown.push_back({text, icon, buttons, defaultButton});
    MsgAnswer answer = buttons == MsgButtons::OK ? MsgAnswer::OK : MsgAnswer::Cancel;
    if (!answers.empty()) {
        answer = answers.front();
        answers.pop_front();
    }
    said.append(QStringLiteral("box %1 %2, default %3 -> %4")
                    .arg(QLatin1String(icons[static_cast<int>(icon)]),
                         QLatin1String(buttonSets[static_cast<int>(buttons)]))
                    .arg(defaultButton)
                    .arg(QLatin1String(answerNames[static_cast<int>(answer)])));
    for (const QString& line : text.split(QStringLiteral("\r\n"))) {
        said.append(QStringLiteral("  | ") + line);
    }
    if (whileShown) {
        whileShown();
    }
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

// An answer as the transcript tells it.
QString told(const std::optional<QString>& answer) {
    return answer ? QLatin1Char('"') + *answer + QLatin1Char('"') : QStringLiteral("cancel");
}

}  // namespace

std::optional<QString> ScriptedDialogs::fileDialog(FileKind kind, const FileDialog& request) {
    static const char* const kinds[] = {"open", "save", "folder"};
    filesShown.push_back({kind, request});
    const std::optional<QString> answer = next(fileAnswers);
    said.append(
        QStringLiteral("%1 \"%2\" in %3 at \"%4\", %5 of %6%7 -> %8")
            .arg(QLatin1String(kinds[static_cast<int>(kind)]), request.title, request.initialDir,
                 request.fileName)
            .arg(request.filterIndex)
            .arg(request.filter,
                 request.promptOverwrite ? QStringLiteral(", asks before overwriting") : QString(),
                 told(answer)));
    return answer;
}

std::optional<QString> ScriptedDialogs::inputBox(const QString& prompt, const QString& proposal) {
    inputsShown.emplace_back(prompt, proposal);
    const std::optional<QString> answer = next(inputAnswers);
    said.append(
        QStringLiteral("input \"%1\" proposing \"%2\" -> %3").arg(prompt, proposal, told(answer)));
    return answer;
}

std::optional<int> ScriptedDialogs::chooseItem(const QString& prompt, const QStringList& items) {
    const std::optional<int> answer = next(choiceAnswers);
    said.append(QStringLiteral("choose \"%1\" of %2 -> %3")
                    .arg(prompt, items.join(QStringLiteral(" / ")),
                         answer ? QString::number(*answer) : QStringLiteral("cancel")));
    return answer;
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
