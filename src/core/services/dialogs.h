#pragma once

#include <QString>
#include <QStringList>

#include <optional>

// The icon, the buttons and the answer of a message box. Boxes carry no title of their own.
enum class MsgIcon { None, Stop, Question, Exclamation, Information };
enum class MsgButtons { OK, OKCancel, YesNo, YesNoCancel };
enum class MsgAnswer { OK, Cancel, Yes, No };

// What an open or a save dialog is shown with. The filter lists pairs of a description and
// its patterns, all separated by "|": "Desko schedules (*.dko)|*.dko|All files (*.*)|*.*";
// filterIndex counts the pairs from 1.
struct FileDialog {
    QString title;
    QString filter;
    int filterIndex = 1;
    QString initialDir;
    QString fileName;
    bool promptOverwrite = false;
};

// Everything the program asks or tells the user in a box goes through this interface: the
// program shows Qt dialogs, the tests script the answers and keep every text shown. Where no
// dialog can be shown, as in the headless tool, every file dialog and input box is cancelled.
class Dialogs {
public:
    virtual ~Dialogs() = default;
    // defaultButton counts the buttons from 1, left to right.
    virtual MsgAnswer messageBox(const QString& text, MsgIcon icon, MsgButtons buttons,
                                 int defaultButton = 1) = 0;
    // The width of a text in the font of the main window's message texts, in pixels.
    virtual double textWidth(const QString& text) const = 0;
    // The chosen file's full name, or nothing when the user cancelled.
    virtual std::optional<QString> openFileDialog(const FileDialog&) { return std::nullopt; }
    virtual std::optional<QString> saveFileDialog(const FileDialog&) { return std::nullopt; }
    // The chosen folder, from the title and the initial folder of the request; nothing when
    // the user cancelled.
    virtual std::optional<QString> folderDialog(const FileDialog&) { return std::nullopt; }
    // An input box with the prompt and a proposed answer, and no title of its own: the text
    // given, or nothing when the user cancelled.
    virtual std::optional<QString> inputBox(const QString& prompt, const QString& proposal) {
        Q_UNUSED(prompt);
        Q_UNUSED(proposal);
        return std::nullopt;
    }
    // A list to choose one item from, under the prompt: the index of the item chosen, or
    // nothing when the user cancelled.
    virtual std::optional<int> chooseItem(const QString& prompt, const QStringList& items) {
        Q_UNUSED(prompt);
        Q_UNUSED(items);
        return std::nullopt;
    }
};
