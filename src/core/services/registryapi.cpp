#include "core/services/registryapi.h"

#include "core/services/registrystore.h"

#include <optional>

namespace {

// The key as the store names it, or nothing below a root that the store does not hold.
std::optional<QString> keyBelow(std::uint32_t root, const QString& key) {
    if (root != kHkeyLocalMachine) {
        return std::nullopt;
    }
    return key.startsWith(QLatin1Char('\\')) ? key.mid(1) : key;
}

QString buffered(const QString& text) {
    return text.left(kRegBuffer - 1);
}

}  // namespace

void modRegSetValue(RegistryStore& store, std::uint32_t root, const QString& key,
                    const QString& name, const QString& value) {
    if (const std::optional<QString> below = keyBelow(root, key)) {
        store.setValue(*below, name, value);
    }
}

QString modRegGetValue(const RegistryStore& store, std::uint32_t root, const QString& key,
                       const QString& name) {
    const std::optional<QString> below = keyBelow(root, key);
    return below ? store.value(*below, name) : QString();
}

void modRegDeleteTree(RegistryStore& store, std::uint32_t root, const QString& key) {
    const std::optional<QString> below = keyBelow(root, key);
    if (!below) {
        return;
    }
    const QStringList subkeys = modRegListKeys(store, root, *below);
    const RegValues values = modRegListValues(store, root, *below);
    // Removing a key takes everything below it, so a subkey needs no walk of its own; the
    // removals are written once, at the end.
    for (const QString& subkey : subkeys) {
        store.deleteKey(*below + QLatin1Char('\\') + subkey);
    }
    for (const auto& value : values) {
        store.deleteValue(*below, value.first);
    }
    store.flush();
}

void modRegDeleteKey(RegistryStore& store, std::uint32_t root, const QString& key) {
    if (const std::optional<QString> below = keyBelow(root, key)) {
        store.deleteKey(*below);
        store.flush();
    }
}

void modRegDeleteValue(RegistryStore& store, std::uint32_t root, const QString& key,
                       const QString& name) {
    if (const std::optional<QString> below = keyBelow(root, key)) {
        store.deleteValue(*below, name);
        store.flush();
    }
}

RegValues modRegListValues(const RegistryStore& store, std::uint32_t root, const QString& key) {
    RegValues list;
    const std::optional<QString> below = keyBelow(root, key);
    for (const QString& name : below ? store.valueNames(*below) : QStringList()) {
        if (buffered(name) == kRegNotFound) {
            break;
        }
        list.emplace_back(buffered(name), buffered(store.value(*below, name)));
    }
    return list;
}

QStringList modRegListKeys(const RegistryStore& store, std::uint32_t root, const QString& key) {
    QStringList list;
    const std::optional<QString> below = keyBelow(root, key);
    for (const QString& name : below ? store.keyNames(*below) : QStringList()) {
        if (buffered(name) == kRegNotFound) {
            break;
        }
        list.append(buffered(name));
    }
    return list;
}
