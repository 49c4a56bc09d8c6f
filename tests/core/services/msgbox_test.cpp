#include "core/services/msgbox.h"
#include "fakes.h"
#include "tables.h"

#include <gtest/gtest.h>

// The scripted dialogs measure 7 pixels a character: a line holds 50 characters.
TEST(WrapMessage, BreaksAtTheLastBlankAndKeepsTheBlankOfLaterLines) {
    const ScriptedDialogs dialogs;
    for (const QStringList& row : tableRows("core/services/golden/wrapping.tsv")) {
        EXPECT_EQ(modWrapMessage(row[0], dialogs), row[1]) << row[0].toStdString();
    }
}
