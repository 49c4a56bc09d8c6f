#pragma once

#include <QString>

#include <cstdint>
#include <optional>

// What a run was started with, read from its environment by the program's entry points.
struct Launch {
    // The program directory: the working file and the log live there.
    QString home;
    // The program directory is the user's own data folder of an installed program, made at
    // the first start.
    bool homeIsUserFolder = false;
    // The first page of the program's help.
    QString helpFile;
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
    // The file that keeps the window's place between runs; empty for a run that neither
    // reads nor keeps it.
    QString windowPlaceFile;
};

// The launch as the environment gives it: DESKO_HOME, else for an installed program a folder
// of the user's own data, else the program's own directory; DESKO_SEED, DESKO_SPLASH_MS, the mail
// configuration (DESKO_MAIL_CONFIG, else msmtp's own files), DESKO_ADDRESSBOOK and DESKO_PDF_DIR,
// with their defaults; the window's place in the user's state folder (XDG_STATE_HOME, else
// ~/.local/state).
Launch launchFromEnvironment();

// Makes the user's folder of an installed program if it is missing. The first start in it
// finds an empty working file there, as a fresh installation brings, rather than a warning
// that the working file is missing. A folder that cannot be made is left to the start-up,
// which goes on without it.
void prepareUserFolder(const Launch& launch);
