#pragma once

#include "printing/qtsurface.h"

#include <QStringList>

#include <functional>
#include <memory>

class QPdfWriter;

// A printer that writes each document as a PDF file on Letter paper. Where a document goes,
// its naming decides from the document's title.
class PdfTarget final : public PageTarget {
public:
    using Naming = std::function<QString(const QString& title)>;

    PdfTarget(QString deviceName, Naming naming);
    ~PdfTarget() override;

    QString deviceName() const override { return deviceName_; }
    QPagedPaintDevice* startDocument(const QString& title,
                                     QPageLayout::Orientation orientation) override;
    void finishDocument() override;

    // The files begun so far, in order, and those of them that could not be written.
    const QStringList& files() const { return files_; }
    const QStringList& unwritten() const { return unwritten_; }

private:
    QString deviceName_;
    Naming naming_;
    std::unique_ptr<QPdfWriter> writer_;
    QStringList files_;
    QStringList unwritten_;
};

// The name of the printer that writes PDF files into a folder.
QString printToPdfName();

// Files in the folder named after the title, "<title>.pdf", and where that is taken
// "<title> (2).pdf", "<title> (3).pdf" …: an earlier file is never written over. The folder is
// made when it is missing.
PdfTarget::Naming namesInFolder(const QString& folder);

// The given file first, then the same name with "-2", "-3" … before its extension.
PdfTarget::Naming numberedFiles(const QString& first);
