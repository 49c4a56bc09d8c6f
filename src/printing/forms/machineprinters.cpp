#include "printing/forms/machineprinters.h"

#include "printing/pdftarget.h"
#include "printing/qtprinters.h"

#include <QPrinter>
#include <QPrinterInfo>

namespace {

// One of the machine's printers: each document is a print job of its own.
class PrinterTarget final : public PageTarget {
public:
    explicit PrinterTarget(QPrinterInfo info) : info_(std::move(info)) {}

    QString deviceName() const override { return info_.printerName(); }

    QPagedPaintDevice* startDocument(const QString& title,
                                     QPageLayout::Orientation orientation) override {
        printer_ = std::make_unique<QPrinter>(info_, QPrinter::HighResolution);
        printer_->setDocName(title);
        printer_->setCreator(QStringLiteral("Desko"));
        printer_->setPageOrientation(orientation);
        return printer_.get();
    }

    void finishDocument() override { printer_.reset(); }

private:
    QPrinterInfo info_;
    std::unique_ptr<QPrinter> printer_;
};

}  // namespace

std::unique_ptr<Printers> machinePrinters(const QString& pdfDir) {
    std::vector<std::unique_ptr<PageTarget>> targets;
    const QString defaultName = QPrinterInfo::defaultPrinterName();
    int current = -1;
    for (const QPrinterInfo& info : QPrinterInfo::availablePrinters()) {
        if (info.printerName() == defaultName) {
            current = static_cast<int>(targets.size());
        }
        targets.push_back(std::make_unique<PrinterTarget>(info));
    }
    targets.push_back(std::make_unique<PdfTarget>(printToPdfName(), namesInFolder(pdfDir)));
    if (current < 0) {
        current = static_cast<int>(targets.size()) - 1;
    }
    return std::make_unique<QtPrinters>(std::move(targets), current, printerFonts());
}
