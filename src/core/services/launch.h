#pragma once

#include <QString>

#include <cstdint>
#include <optional>

// What a run was started with, read from its environment by the program's entry points.
struct Launch {
    // The program directory: the working file and the log live there.
    QString home;
    // The random sequence's first state, when the run is to repeat another draw for draw.
    std::optional<std::uint32_t> seed;
    // How long the splash stands, in milliseconds; 0 for none.
    int splashMs = 7500;
    // The mail accounts' configuration file; empty when the user has none.
    QString mailConfig;
    // The folder of the address book's vCard files.
    QString addressBook;
    // The folder that the "Print to PDF" printer writes its files into.
    QString pdfDir;
};

// The launch as the environment gives it: DESKO_HOME (else the program's own directory),
// DESKO_SEED, DESKO_SPLASH_MS, the mail configuration (DESKO_MAIL_CONFIG, else msmtp's own
// files), DESKO_ADDRESSBOOK and DESKO_PDF_DIR, with their defaults.
Launch launchFromEnvironment();
