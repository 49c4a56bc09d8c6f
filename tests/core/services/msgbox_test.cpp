#include "core/services/msgbox.h"
#include "fakes.h"

#include <gtest/gtest.h>

// The scripted dialogs measure 7 pixels a character: a line holds 50 characters.
TEST(WrapMessage, BreaksAtTheLastBlankAndKeepsTheBlankOfLaterLines) {
    const QString a(30, QLatin1Char('a'));
    const QString b(30, QLatin1Char('b'));
    const QString c(30, QLatin1Char('c'));
    const QString longWord(60, QLatin1Char('x'));
    struct Case {
        QString text;
        QString wrapped;
    };
    const Case cases[] = {
        {QStringLiteral("Short enough."), QStringLiteral("Short enough.")},
        {QString(50, QLatin1Char('y')), QString(50, QLatin1Char('y'))},
        {longWord, longWord},  // no blank to break at
        {a + QLatin1Char(' ') + b + QLatin1Char(' ') + c,
         a + QStringLiteral("\r\n") + b + QStringLiteral(" \r\n") + c},
        {QLatin1Char(' ') + longWord,
         QLatin1Char(' ') + longWord},  // the only blank starts the line
        {QStringLiteral("x ") + longWord, QStringLiteral("x\r\n") + longWord},
        {a + QLatin1Char(' ') + longWord, a + QStringLiteral("\r\n") + longWord},
    };
    const ScriptedDialogs dialogs;
    for (const Case& c : cases) {
        EXPECT_EQ(modWrapMessage(c.text, dialogs), c.wrapped) << c.text.toStdString();
    }
}
