#include "core/services/registrystore.h"

#include "core/services/textfile.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <QStringDecoder>

namespace {

const QChar kKeySeparator = QLatin1Char('\\');

QStringList partsOf(const QString& key) {
    return key.split(kKeySeparator, Qt::SkipEmptyParts);
}

template <typename Map>
QStringList namesOf(const Map& map) {
    QStringList names;
    for (const auto& entry : map) {
        names.append(entry.first);
    }
    return names;
}

// A value as text. A settings file written by hand may hold a list, "a, b", where a text
// with a comma was meant.
QString textOf(const QVariant& value) {
    return value.typeId() == QMetaType::QStringList
               ? value.toStringList().join(QStringLiteral(", "))
               : value.toString();
}

// The settings of a file, or none for a file that cannot be a store of settings: one far
// larger than a store grows, which would take long to read, or one that is no text.
std::unique_ptr<QSettings> settingsIn(const QString& path) {
    QFile file(path);
    if (file.exists()) {
        if (file.size() > SettingsRegistryStore::kLargestSettingsFile ||
            !file.open(QIODevice::ReadOnly)) {
            return nullptr;
        }
        const QByteArray bytes = file.readAll();
        QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
        utf8.decode(bytes);
        if (bytes.contains('\0') || utf8.hasError()) {
            return nullptr;
        }
    }
    return std::make_unique<QSettings>(path, QSettings::IniFormat);
}

}  // namespace

template <typename Self>
auto* MemoryRegistryStore::find(Self& self, const QString& key) {
    auto* node = &self.root_;
    for (const QString& part : partsOf(key)) {
        const auto it = node->keys.find(part);
        if (it == node->keys.end()) {
            return decltype(node){nullptr};
        }
        node = &it->second;
    }
    return node;
}

void MemoryRegistryStore::setValue(const QString& key, const QString& name, const QString& value) {
    Node* node = &root_;
    for (const QString& part : partsOf(key)) {
        node = &node->keys[part];
    }
    node->values[name] = value;
}

QString MemoryRegistryStore::value(const QString& key, const QString& name) const {
    const Node* node = find(*this, key);
    if (node == nullptr) {
        return QString();
    }
    const auto it = node->values.find(name);
    return it == node->values.end() ? QString() : it->second;
}

QStringList MemoryRegistryStore::valueNames(const QString& key) const {
    const Node* node = find(*this, key);
    return node == nullptr ? QStringList() : namesOf(node->values);
}

QStringList MemoryRegistryStore::keyNames(const QString& key) const {
    const Node* node = find(*this, key);
    return node == nullptr ? QStringList() : namesOf(node->keys);
}

void MemoryRegistryStore::deleteKey(const QString& key) {
    QStringList parts = partsOf(key);
    if (parts.isEmpty()) {
        return;
    }
    const QString last = parts.takeLast();
    if (Node* parent = find(*this, parts.join(kKeySeparator))) {
        parent->keys.erase(last);
    }
}

void MemoryRegistryStore::deleteValue(const QString& key, const QString& name) {
    if (Node* node = find(*this, key)) {
        node->values.erase(name);
    }
}

SettingsRegistryStore::SettingsRegistryStore(const QString& path, const QString& base)
    : SettingsRegistryStore(settingsIn(path), base, path) {}

std::unique_ptr<SettingsRegistryStore> SettingsRegistryStore::native(const QString& base) {
    const QStringList parts = partsOf(base);
    const QString organisation = parts.value(1);
    const QString application = parts.value(parts.size() - 1);
#ifdef Q_OS_WIN
    auto settings = std::make_unique<QSettings>(QSettings::NativeFormat, QSettings::SystemScope,
                                                organisation, application);
    return std::unique_ptr<SettingsRegistryStore>(
        new SettingsRegistryStore(std::move(settings), base, QString()));
#else
    // The file that the user's native settings of that name are kept in. Named here, so that
    // it is looked at before anything reads it.
    return std::make_unique<SettingsRegistryStore>(
        QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QLatin1Char('/') +
            organisation + QLatin1Char('/') + application + QStringLiteral(".conf"),
        base);
#endif
}

SettingsRegistryStore::SettingsRegistryStore(std::unique_ptr<QSettings> settings,
                                             const QString& base, const QString& file)
    : settings_(std::move(settings)), base_(base), file_(file) {
    // A file that cannot be read whole, or is not read at all, is left as it is: nothing of it
    // is taken for a store of an earlier version, and nothing is written over it.
    damaged_ = !settings_;
    if (damaged_) {
        return;
    }
    // Only this file counts: a store that other scopes lent values to could never be emptied.
    settings_->setFallbacksEnabled(false);
    const QStringList paths = settings_->allKeys();
    damaged_ = settings_->status() == QSettings::FormatError;
    for (const QString& path : damaged_ ? QStringList() : paths) {
        QStringList parts = path.split(QLatin1Char('/'));
        const QString name = parts.takeLast();
        parts.prepend(base_);
        contents_.setValue(parts.join(kKeySeparator), name, textOf(settings_->value(path)));
    }
}

// Pending removals are written as the settings close.
SettingsRegistryStore::~SettingsRegistryStore() = default;

std::optional<QString> SettingsRegistryStore::pathOf(const QString& key,
                                                     const QString& name) const {
    QStringList parts = partsOf(key);
    const QStringList baseParts = partsOf(base_);
    if (parts.mid(0, baseParts.size()) != baseParts) {
        return std::nullopt;
    }
    parts = parts.mid(baseParts.size());
    if (!name.isEmpty()) {
        parts.append(name);
    }
    return parts.join(QLatin1Char('/'));
}

void SettingsRegistryStore::setValue(const QString& key, const QString& name,
                                     const QString& value) {
    const std::optional<QString> path = pathOf(key, name);
    if (!path || !writable()) {
        return;
    }
    settings_->setValue(*path, value);
    settings_->sync();
    if (settings_->status() != QSettings::AccessError) {
        contents_.setValue(key, name, value);
        return;
    }
    // Undone, so that a later write of other changes cannot store it after all.
    if (contents_.valueNames(key).contains(name)) {
        settings_->setValue(*path, contents_.value(key, name));
    } else {
        settings_->remove(*path);
    }
}

QString SettingsRegistryStore::value(const QString& key, const QString& name) const {
    return contents_.value(key, name);
}

QStringList SettingsRegistryStore::valueNames(const QString& key) const {
    return contents_.valueNames(key);
}

QStringList SettingsRegistryStore::keyNames(const QString& key) const {
    return contents_.keyNames(key);
}

void SettingsRegistryStore::deleteKey(const QString& key) {
    const std::optional<QString> path = pathOf(key);
    if (path && writable()) {
        settings_->remove(*path);
        contents_.deleteKey(key);
    }
}

void SettingsRegistryStore::deleteValue(const QString& key, const QString& name) {
    const std::optional<QString> path = pathOf(key, name);
    if (path && writable()) {
        // A settings file removes the subkey of the same name with the value.
        settings_->remove(*path);
        contents_.deleteValue(key, name);
        contents_.deleteKey(key + kKeySeparator + name);
    }
}

void SettingsRegistryStore::flush() {
    if (writable()) {
        settings_->sync();
    }
}

bool SettingsRegistryStore::writable() const {
    if (damaged_) {
        return false;
    }
    if (file_.isEmpty()) {
        return true;  // the registry tells by failing
    }
    // The settings are written to a new file beside the old one, which then takes its place;
    // a missing folder is made, below the nearest one that is there.
    const QString& file = file_;
    QFileInfo folder(QFileInfo(file).absolutePath());
    while (!folder.exists() && !folder.isRoot()) {
        folder = QFileInfo(folder.absolutePath());
    }
    return !isReadOnlyFile(file) && folder.isDir() && !isReadOnlyDirectory(folder.filePath());
}

QString SettingsRegistryStore::unreadableFile() const {
    return damaged_ ? file_ : QString();
}
