#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>
#include <utility>
#include <vector>

class RegistryStore;

// The program's reads and writes of the registry. Each takes the root as the registry
// numbers it and a key below it, which may begin with a backslash. The store holds the
// machine's root alone: below any other root there is nothing, and nothing can be written.
inline constexpr std::uint32_t kHkeyLocalMachine = 0x80000002;

// Listing reads each name, and each value's text, through a buffer of this many characters,
// the closing null included: a longer one comes back cut.
inline constexpr int kRegBuffer = 2048;

// What listing reads in place of a name past the last entry. An entry that bears this name
// ends the list there.
inline const QString kRegNotFound = QStringLiteral("!!!NOT!FOUND!!!");

// Writes the value as text, making the key when it is missing.
void modRegSetValue(RegistryStore& store, std::uint32_t root, const QString& key,
                    const QString& name, const QString& value);

// The value's text; the empty text when the key or the value is missing.
QString modRegGetValue(const RegistryStore& store, std::uint32_t root, const QString& key,
                       const QString& name);

// Removes what the key holds as it lists it: its subkeys, each with everything below it, and
// then its values. The key itself stays.
void modRegDeleteTree(RegistryStore& store, std::uint32_t root, const QString& key);

// Removes the key with everything below it.
void modRegDeleteKey(RegistryStore& store, std::uint32_t root, const QString& key);

void modRegDeleteValue(RegistryStore& store, std::uint32_t root, const QString& key,
                       const QString& name);

// The key's values as name and text, and the names of its subkeys, in the store's order, up
// to an entry named kRegNotFound.
using RegValues = std::vector<std::pair<QString, QString>>;
RegValues modRegListValues(const RegistryStore& store, std::uint32_t root, const QString& key);
QStringList modRegListKeys(const RegistryStore& store, std::uint32_t root, const QString& key);
