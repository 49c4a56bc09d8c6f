#pragma once

#include "core/services/machine.h"

// The machine the program runs on, as its system tells it.
class SystemMachine final : public Machine {
public:
    QString userName() const override;
    QString hostName() const override;
    SystemVersion systemVersion() const override;
    QString systemDataDir() const override;
    QString systemLibraryDir() const override;
    std::optional<Volume> volume(const QString& path) const override;
    std::optional<qint64> physicalMemoryBytes() const override;
    QString ipAddress() const override;
    QString desktopDir() const override;
    QString applicationsDir() const override;
};
