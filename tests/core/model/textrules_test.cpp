#include "core/model/textrules.h"
#include "fakes.h"

#include <gtest/gtest.h>

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
