#pragma once

#include <QString>

#include <vector>

// One address of the address book with the names of the card it stands on. A card with
// several addresses gives an entry for each.
struct AddressEntry {
    QString fullName;
    QString familyName;
    QString givenName;
    QString address;
};

// The entries of vCard text (versions 2.1 to 4.0): each card's FN, N and every EMAIL, with
// folded lines joined and escapes read. Cards without an address give nothing.
std::vector<AddressEntry> parseVCards(const QString& text);

// The entries of every .vcf file in the folder, in the order of the files' names; nothing
// for a missing folder, and an unreadable or oversized file is passed over.
std::vector<AddressEntry> readAddressBook(const QString& folder);

// The entries that a name or an address stands for: those whose full name, given and family
// name, family name alone or address is the text, case and surrounding blanks ignored; one
// entry for each address.
std::vector<AddressEntry> matchingEntries(const std::vector<AddressEntry>& book,
                                          const QString& text);
