#include "core/services/registrystore.h"

#include <QSettings>

namespace {

// Key paths compare without regard to case, as registry keys do.
QString settingsKey(const QString& key, const QString& name) {
    QString path = key.toLower();
    path.replace(QLatin1Char('\\'), QLatin1Char('/'));
    return path + QLatin1Char('/') + name.toLower();
}

}  // namespace

void FileRegistryStore::setValue(const QString& key, const QString& name, const QString& value) {
    QSettings settings(path_, QSettings::IniFormat);
    settings.setValue(settingsKey(key, name), value);
}

QString FileRegistryStore::value(const QString& key, const QString& name) const {
    const QSettings settings(path_, QSettings::IniFormat);
    return settings.value(settingsKey(key, name)).toString();
}

void MemoryRegistryStore::setValue(const QString& key, const QString& name, const QString& value) {
    values_[{key.toLower(), name.toLower()}] = value;
}

QString MemoryRegistryStore::value(const QString& key, const QString& name) const {
    const auto it = values_.find({key.toLower(), name.toLower()});
    return it == values_.end() ? QString() : it->second;
}
