#pragma once

#include <QString>

#include <map>
#include <utility>

// The machine-wide settings store. Keys are paths below the machine root with "\" between
// their parts, as "Software\Maker\Program\Settings"; all values are text.
class RegistryStore {
public:
    virtual ~RegistryStore() = default;
    // Creates the key when it is missing. A store that cannot be written drops the value.
    virtual void setValue(const QString& key, const QString& name, const QString& value) = 0;
    // The empty text for a missing key or value.
    virtual QString value(const QString& key, const QString& name) const = 0;
};

// A store kept in one settings file; it stands in for the registry where there is none.
class FileRegistryStore final : public RegistryStore {
public:
    explicit FileRegistryStore(QString path) : path_(std::move(path)) {}
    void setValue(const QString& key, const QString& name, const QString& value) override;
    QString value(const QString& key, const QString& name) const override;

private:
    QString path_;
};

// A store that lives as long as the process: for runs that must leave nothing behind.
class MemoryRegistryStore final : public RegistryStore {
public:
    void setValue(const QString& key, const QString& name, const QString& value) override;
    QString value(const QString& key, const QString& name) const override;

private:
    std::map<std::pair<QString, QString>, QString> values_;
};
