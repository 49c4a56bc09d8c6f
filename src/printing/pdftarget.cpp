#include "printing/pdftarget.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPdfWriter>

PdfTarget::PdfTarget(QString deviceName, Naming naming)
    : deviceName_(std::move(deviceName)), naming_(std::move(naming)) {}

PdfTarget::~PdfTarget() = default;

QPagedPaintDevice* PdfTarget::startDocument(const QString& title,
                                            QPageLayout::Orientation orientation) {
    const QString file = naming_(title);
    files_.append(file);
    // A file that cannot be written begins no document.
    if (QFile probe(file); !probe.open(QIODevice::WriteOnly)) {
        unwritten_.append(file);
        return nullptr;
    }
    writer_ = std::make_unique<QPdfWriter>(file);
    writer_->setTitle(title);
    writer_->setCreator(QStringLiteral("Desko"));
    writer_->setPageLayout(
        QPageLayout(QPageSize(QPageSize::Letter), orientation, QMarginsF(0, 0, 0, 0)));
    return writer_.get();
}

void PdfTarget::finishDocument() {
    writer_.reset();
}

QString printToPdfName() {
    return QStringLiteral("Print to PDF");
}

PdfTarget::Naming namesInFolder(const QString& folder) {
    return [folder](const QString& title) {
        QDir dir(folder);
        dir.mkpath(QStringLiteral("."));
        QString stem = title.isEmpty() ? QStringLiteral("Desko") : title;
        stem.replace(QLatin1Char('/'), QLatin1Char('-'));
        QString name = stem + QStringLiteral(".pdf");
        for (int n = 2; QFileInfo::exists(dir.filePath(name)); ++n) {
            name = QStringLiteral("%1 (%2).pdf").arg(stem).arg(n);
        }
        return dir.filePath(name);
    };
}

PdfTarget::Naming numberedFiles(const QString& first) {
    return [first, count = 0](const QString&) mutable {
        ++count;
        if (count == 1) {
            return first;
        }
        const QFileInfo info(first);
        const QString suffix = info.suffix();
        QString base = first;
        if (!suffix.isEmpty()) {
            base.chop(suffix.size() + 1);
        }
        QString name = base + QLatin1Char('-') + QString::number(count);
        if (!suffix.isEmpty()) {
            name += QLatin1Char('.') + suffix;
        }
        return name;
    };
}
