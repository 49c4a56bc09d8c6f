#pragma once

#include "persistence/registrystore.h"
#include "shell/clock.h"
#include "shell/context.h"
#include "shell/dialogs.h"

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

// Message boxes answered from a script; every text shown is kept. Each character is 7 pixels
// wide, so a test can tell where a message breaks.
class ScriptedDialogs final : public Dialogs {
public:
    struct Shown {
        QString text;
        MsgIcon icon;
        MsgButtons buttons;
        int defaultButton;
    };
    std::deque<MsgAnswer> answers;
    std::vector<Shown> shown;
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
};

// The services of a test run, wired together.
struct TestServices {
    FixedClock clock;
    ScriptedDialogs dialogs;
    MemoryRegistryStore registry;
    Context ctx{clock, dialogs, registry, {}};
};
