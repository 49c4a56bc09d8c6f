#pragma once

#include <QString>

class Dialogs;

// Breaks a message box text at blanks so that no line is wider than 350 pixels of the
// dialogs' text font. A text without a blank past a line's start is not broken.
QString modWrapMessage(const QString& text, const Dialogs& dialogs);
