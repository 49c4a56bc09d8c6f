#include "core/model/textrules.h"
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

TEST(ProperCase, TidiesPathsAndNames) {
    struct Case {
        const char* text;
        const char* tidied;
    };
    const Case cases[] = {
        {"", ""},
        {"c:\\program files\\desko", "C:\\Program Files\\Desko"},
        {"/HOME/ANNA/my_files/[old]-copy", "/Home/Anna/My_Files/[Old]-Copy"},
        {"WORKSTATION-07", "Workstation-07"},
        {"o'neil.example.ORG", "O'neil.example.org"},
        {".[hidden]", "[Hidden]"},
        {".hidden", ".hidden"},
        {"\xc3\xbc"
         "BER \xc3\x84RGER",
         "\xc3\x9c"
         "ber \xc3\x84rger"},  // only A to Z change later on
    };
    for (const Case& c : cases) {
        EXPECT_EQ(modProperCase(QString::fromUtf8(c.text)), QString::fromUtf8(c.tidied)) << c.text;
    }
}

TEST(BaseName, FollowsTheLastSeparatorOfEitherKind) {
    const char* const cases[][2] = {{"/home/ann/May.dko", "May.dko"},
                                    {"C:\\Office\\June.dko", "June.dko"},
                                    {"mixed/dir\\July.dko", "July.dko"},
                                    {"plain.dko", "plain.dko"},
                                    {"/trailing/", ""}};
    for (const auto& c : cases) {
        EXPECT_EQ(modBaseName(QString::fromUtf8(c[0])), QString::fromUtf8(c[1])) << c[0];
    }
}
