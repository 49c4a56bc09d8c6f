#include "fuzzing.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

// The fuzz target without the fuzzing engine: runs it once on each file named and on each
// file of each folder named, in name order, so that the ordinary suite keeps every input
// that once broke a promise. The name goes out before the run, so a failure names its file.
int main(int argc, char** argv) {
    int runs = 0;
    for (int i = 1; i < argc; ++i) {
        const QFileInfo given(QString::fromLocal8Bit(argv[i]));
        QStringList files;
        if (given.isDir()) {
            for (const QFileInfo& file :
                 QDir(given.filePath()).entryInfoList(QDir::Files, QDir::Name)) {
                files.append(file.filePath());
            }
        } else {
            files.append(given.filePath());
        }
        for (const QString& name : files) {
            QFile file(name);
            if (!file.open(QIODevice::ReadOnly)) {
                std::fprintf(stderr, "%s cannot be read\n", qPrintable(name));
                return 1;
            }
            const QByteArray bytes = file.readAll();
            std::printf("%s\n", qPrintable(name));
            std::fflush(stdout);
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                                   static_cast<std::size_t>(bytes.size()));
            ++runs;
        }
    }
    std::printf("%d inputs ran\n", runs);
    return runs > 0 ? 0 : 1;
}
