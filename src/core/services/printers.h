#pragma once

#include <QStringList>

class Surface;

// The printers a run may print on, and the current one, which every report draws on.
class Printers {
public:
    virtual ~Printers() = default;
    // The DeviceName of each printer, in the machine's order.
    virtual QStringList deviceNames() const = 0;
    // The current printer.
    virtual Surface& printer() = 0;
    // The printer of that index in deviceNames() becomes the current one for the rest of the
    // run, with the device's own settings; an index out of range is passed over.
    virtual void setPrinter(int index) = 0;
    // The name of the documents that follow: the print job's title, the PDF file's name.
    virtual void setDocumentTitle(const QString& title) = 0;
};
