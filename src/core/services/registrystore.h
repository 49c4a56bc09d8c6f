#pragma once

#include <QString>
#include <QStringList>

#include <map>
#include <memory>
#include <optional>

class QSettings;

// The machine's settings store, a tree of keys that hold named text values. A key is the path
// below the machine's root with "\" between its parts, as "Software\Maker\Program\Settings".
// Names compare exactly; keys and values are listed in sorted order.
class RegistryStore {
public:
    virtual ~RegistryStore() = default;
    // Creates the key and those above it when missing. A store that cannot be written keeps
    // nothing of the value, so that reading it back tells whether it was stored.
    virtual void setValue(const QString& key, const QString& name, const QString& value) = 0;
    // The empty text for a missing key or value.
    virtual QString value(const QString& key, const QString& name) const = 0;
    // The names of the key's values and of its subkeys; none for a missing key.
    virtual QStringList valueNames(const QString& key) const = 0;
    virtual QStringList keyNames(const QString& key) const = 0;
    // Remove a key with everything below it, and a single value. A store may keep removals
    // pending until flush(), so that emptying a large tree costs one write.
    virtual void deleteKey(const QString& key) = 0;
    virtual void deleteValue(const QString& key, const QString& name) = 0;
    virtual void flush() = 0;
    // Whether changes can be stored at all.
    virtual bool writable() const = 0;
    // The file of a store that could not be read as one and is left as it is; the empty text
    // for a store that was read.
    virtual QString unreadableFile() const { return QString(); }
};

// A store that lives as long as the process: for runs that must leave nothing behind.
class MemoryRegistryStore final : public RegistryStore {
public:
    void setValue(const QString& key, const QString& name, const QString& value) override;
    QString value(const QString& key, const QString& name) const override;
    QStringList valueNames(const QString& key) const override;
    QStringList keyNames(const QString& key) const override;
    void deleteKey(const QString& key) override;
    void deleteValue(const QString& key, const QString& name) override;
    void flush() override {}
    bool writable() const override { return true; }

private:
    struct Node {
        std::map<QString, Node> keys;
        std::map<QString, QString> values;
    };
    // The key's node, or nullptr when it is missing.
    template <typename Self>
    static auto* find(Self& self, const QString& key);

    Node root_;
};

// A store kept by QSettings: the tree below one base key, in a settings file of its own or,
// on Windows, in the registry itself. Its contents are read once, when it is opened. A file
// that cannot be read whole, one of more than kLargestSettingsFile bytes and one that is no
// text count as empty, and cannot be written.
class SettingsRegistryStore final : public RegistryStore {
public:
    static constexpr qint64 kLargestSettingsFile = 1024 * 1024;

    // The settings file at path, in the portable INI format.
    SettingsRegistryStore(const QString& path, const QString& base);
    // The program's store, in the platform's own format: the registry's machine branch on
    // Windows; elsewhere the user's settings file, since the machine's is not the user's to
    // write, named after the organisation and the application that the base key names
    // ("Software\Organisation\Application").
    static std::unique_ptr<SettingsRegistryStore> native(const QString& base);
    ~SettingsRegistryStore() override;

    void setValue(const QString& key, const QString& name, const QString& value) override;
    QString value(const QString& key, const QString& name) const override;
    QStringList valueNames(const QString& key) const override;
    QStringList keyNames(const QString& key) const override;
    void deleteKey(const QString& key) override;
    void deleteValue(const QString& key, const QString& name) override;
    void flush() override;
    bool writable() const override;
    QString unreadableFile() const override;

private:
    // A store in the file, or for an empty file name in the registry; no settings for a file
    // that is left unread.
    SettingsRegistryStore(std::unique_ptr<QSettings> settings, const QString& base,
                          const QString& file);
    // The settings' path of a key, or of a key's value; nothing for a key outside the base.
    std::optional<QString> pathOf(const QString& key, const QString& name = QString()) const;

    std::unique_ptr<QSettings> settings_;
    QString base_;
    QString file_;
    bool damaged_ = false;
    // What the settings hold, for quick reading and listing.
    MemoryRegistryStore contents_;
};
