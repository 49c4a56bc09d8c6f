#pragma once

#include "core/services/printers.h"
#include "printing/qtsurface.h"

#include <memory>
#include <vector>

// The printers of a run, each drawn on by a QtSurface over its target. There is always at
// least one; the current one is drawn on until another is chosen.
class QtPrinters final : public Printers {
public:
    // targets must not be empty; current is an index into it.
    QtPrinters(std::vector<std::unique_ptr<PageTarget>> targets, int current, QStringList fonts);
    ~QtPrinters() override;

    QStringList deviceNames() const override;
    Surface& printer() override { return *surface_; }
    void setPrinter(int index) override;
    void setDocumentTitle(const QString& title) override;

private:
    std::vector<std::unique_ptr<PageTarget>> targets_;
    QStringList fonts_;
    QString title_;
    std::unique_ptr<QtSurface> surface_;
};

// The font families the machine offers for printing: those of the system, and "Times New
// Roman", "Arial" and "Courier New" where the system stands fonts of the same measures in
// for them. Needs the application's font database.
QStringList printerFonts();
