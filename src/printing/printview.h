#pragma once

#include <QString>

// What the print command asks of the main window while it runs. The window carries it out;
// the tests record it.
class PrintView {
public:
    virtual ~PrintView() = default;
    // The command begins: its status stands in the month's place, the window goes busy and
    // the hourglass shows.
    virtual void beginPrinting(const QString& status) = 0;
    // The status of the report being printed.
    virtual void showPrintStatus(const QString& status) = 0;
    // The month comes back in the status's place, and the window's normal face.
    virtual void endPrinting() = 0;
};

// Where the command has no window to show its progress in.
class NoPrintView final : public PrintView {
public:
    void beginPrinting(const QString&) override {}
    void showPrintStatus(const QString&) override {}
    void endPrinting() override {}
};
