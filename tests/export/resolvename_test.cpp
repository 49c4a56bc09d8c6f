#include "export/resolvename.h"

#include "core/model/workspace.h"
#include "core/services/textfile.h"
#include "fakes.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

// The address book's vCards, as different programs write them: folded lines, groups, several
// addresses on one card, CR LF or LF, escapes. A name or an address resolves when it stands
// for one address; several open the chooser, whose Cancel resolves nothing.
TEST(ResolveName, FindsTheOneAddressAndLetsTheUserChooseAmongSeveral) {
    QTemporaryDir book;
    writeTextFile(book.filePath(QStringLiteral("team.vcf")),
                  QStringLiteral("BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Wei Chen\r\nN:Chen;Wei;;;\r\n"
                                 "item1.EMAIL;TYPE=work:wei.chen@exam\r\n ple.org\r\nEND:VCARD\r\n"
                                 "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Anna Fischer\r\n"
                                 "N:Fischer;Anna;;;\r\nEMAIL:anna@work.example\r\n"
                                 "EMAIL;TYPE=home:anna@home.example\r\nEND:VCARD\r\n"));
    writeTextFile(book.filePath(QStringLiteral("Other.VCF")),
                  QStringLiteral("BEGIN:VCARD\nVERSION:4.0\nFN:Anna Kowalski\nN:Kowalski;Anna\n"
                                 "EMAIL:anna.k@example.org\nEND:VCARD\nBEGIN:VCARD\nFN:O\\, No\n"
                                 "END:VCARD\n"));
    writeTextFile(book.filePath(QStringLiteral("notes.txt")),
                  QStringLiteral("BEGIN:VCARD\nFN:Wei Chen\nEMAIL:other@x.org\nEND:VCARD\n"));
    struct Case {
        const char* name;
        std::optional<int> choice;  // the answer of the chooser, when it shows
        const char* address;
        int choices;
    };
    const Case cases[] = {
        {"wei chen", {}, "wei.chen@example.org", 0},
        {" CHEN ", {}, "wei.chen@example.org", 0},
        {"anna.k@example.org", {}, "anna.k@example.org", 0},
        {"Nobody", {}, "", 0},
        {"Anna Fischer", 1, "anna@home.example", 2},
        {"Anna Fischer", std::nullopt, "", 2},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        TestServices s;
        Workspace ws;
        openMonth(ws, 2027, 1, book.path());
        s.ctx.launch.addressBook = book.path();
        s.dialogs.choiceAnswers = {c.choice};
        EXPECT_EQ(modResolveName(ws, s.ctx, QString::fromUtf8(c.name)),
                  QString::fromUtf8(c.address));
        ASSERT_EQ(s.dialogs.choicesShown.size(), c.choices > 0 ? 1U : 0U);
        if (c.choices > 0) {
            EXPECT_EQ(
                s.dialogs.choicesShown[0].second,
                texts({"Anna Fischer  <anna@work.example>", "Anna Fischer  <anna@home.example>"}));
            EXPECT_EQ(logged(ws, QStringLiteral("Could not resolve MAPI recipient name")),
                      !c.choice.has_value());
        }
    }
}
