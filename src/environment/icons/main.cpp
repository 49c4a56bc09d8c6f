// Draws the program's logo into PNG files at build time, for the icon theme and the help:
//     desko40-icons SIDE FILE [SIDE FILE ...]
// Each FILE gets a square of SIDE pixels; missing folders are made.

#include "environment/logo.h"

#include <QDir>
#include <QFileInfo>
#include <QString>

#include <cstdio>

int main(int argc, char* argv[]) {
    if (argc < 3 || argc % 2 == 0) {
        std::fputs("usage: desko40-icons SIDE FILE [SIDE FILE ...]\n", stderr);
        return 2;
    }
    for (int i = 1; i + 1 < argc; i += 2) {
        bool ok = false;
        const int side = QString::fromLocal8Bit(argv[i]).toInt(&ok);
        const QString file = QString::fromLocal8Bit(argv[i + 1]);
        if (!ok || side < 1 || side > 4096) {
            std::fprintf(stderr, "desko40-icons: not a size: %s\n", argv[i]);
            return 2;
        }
        if (!QDir().mkpath(QFileInfo(file).path()) || !drawLogo(side).save(file, "PNG")) {
            std::fprintf(stderr, "desko40-icons: cannot write %s\n", argv[i + 1]);
            return 1;
        }
    }
    return 0;
}
