#pragma once

#include "core/services/dialogs.h"

#include <QString>

// Breaks a message box text at blanks so that no line is wider than 350 pixels of the
// dialogs' text font. A text without a blank past a line's start is not broken.
QString modWrapMessage(const QString& text, const Dialogs& dialogs);

// Shows a message box whose text is broken as above, and gives the answer.
MsgAnswer msgBox(Dialogs& dialogs, const QString& text, MsgIcon icon, MsgButtons buttons,
                 int defaultButton = 1);
