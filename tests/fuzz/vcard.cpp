#include "fuzzing.h"

#include "core/services/textfile.h"
#include "export/addressbook.h"

#include <QDir>

namespace {

// Addresses compare with case ignored: the book gives one entry for each.
bool holds(const std::vector<AddressEntry>& entries, const QString& address) {
    return std::any_of(entries.begin(), entries.end(), [&](const AddressEntry& entry) {
        return entry.address.compare(address, Qt::CaseInsensitive) == 0;
    });
}

}  // namespace

// The vCard address book: every entry has an address, a card is found by its address and
// its full name, and the book's folder reads as its file's text does.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes = inputBytes(data, size);
    const std::vector<AddressEntry> book = parseVCards(decodeText(bytes));
    for (const AddressEntry& entry : book) {
        require(!entry.address.isEmpty(), "every entry has an address");
        require(holds(matchingEntries(book, entry.address), entry.address),
                "a card is found by its address");
        require(entry.fullName.trimmed().isEmpty() ||
                    holds(matchingEntries(book, entry.fullName), entry.address),
                "a card is found by its full name");
    }
    scratchFile(QStringLiteral("book/office.vcf"), bytes);
    require(readAddressBook(scratchPath(QStringLiteral("book"))).size() == book.size(),
            "the folder reads as its file");
    return 0;
}
