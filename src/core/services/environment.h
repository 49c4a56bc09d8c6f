#pragma once

#include <QString>

#include <optional>

// Facts about the machine, gathered once at start. A fact that could not be found stays
// empty (numbers unset, flags false), and the log prints it so.
struct Environment {
    QString gAccountName;
    QString gMachineName;
    QString gWindowsDir;
    QString gSystemDir;
    QString gWindowsDrive;
    QString gIpAddress;
    bool gAccountRightsOk = false;
    std::optional<long long> gDiskTotalMB;
    std::optional<long long> gDiskFreeMB;
    std::optional<long long> gPhysicalMemoryMB;
    QString gWindowsName;
    QString gWindowsMajor;
    QString gWindowsMinor;
    QString gWindowsBuild;
    QString gWindowsServicePack;
    QString gDesktopDir;
    QString gStartMenuDir;
    QString gMapiProfile;
    bool gOutlookInstalled = false;
};
