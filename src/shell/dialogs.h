#pragma once

#include <QString>

// The icon, the buttons and the answer of a message box. Boxes carry no title of their own.
enum class MsgIcon { None, Stop, Question, Exclamation, Information };
enum class MsgButtons { OK, OKCancel, YesNo, YesNoCancel };
enum class MsgAnswer { OK, Cancel, Yes, No };

// Everything the program asks or tells the user in a box goes through this interface: the
// program shows Qt dialogs, the tests script the answers and keep every text shown.
class Dialogs {
public:
    virtual ~Dialogs() = default;
    // defaultButton counts the buttons from 1, left to right.
    virtual MsgAnswer messageBox(const QString& text, MsgIcon icon, MsgButtons buttons,
                                 int defaultButton = 1) = 0;
    // The width of a text in the font of the main window's message texts, in pixels.
    virtual double textWidth(const QString& text) const = 0;
};
