#pragma once

#include <QString>

#include <memory>

class Printers;

// The printers of the machine, as the print system lists them, and after them "Print to
// PDF", which writes each document as a PDF file into pdfDir. The machine's default printer
// is the current one, else "Print to PDF". Needs the application's font database.
std::unique_ptr<Printers> machinePrinters(const QString& pdfDir);
