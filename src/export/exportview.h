#pragma once

#include <QString>

// What the export asks of the main window while it runs. The window carries it out; the
// headless tool has no window, and the tests record what was asked.
class ExportView {
public:
    virtual ~ExportView() = default;
    // One of the export boxes, 3 to 5 among the six print and export boxes, shows unticked.
    virtual void untickExportBox(int box) = 0;
    // The status frame stands in the month's place with the text, the window goes busy and
    // the hourglass shows.
    virtual void beginExport(const QString& status) = 0;
    // The status line says what runs now, and the screen catches up.
    virtual void showStatus(const QString& text) = 0;
    // The upper status line says what runs, the lower one is empty, the progress bar shows
    // empty, and the window comes to the front.
    virtual void showProgressBar(const QString& text) = 0;
    // The share of the bar that is filled; a share above 1 fills it and no more.
    virtual void showProgress(double share) = 0;
    virtual void hideProgressBar() = 0;
    // The month back in the status frame's place, the window's normal face rebuilt from the
    // Workspace, and the normal pointer.
    virtual void endExport() = 0;
};

// Where there is no window, as in the headless tool: nothing to show.
class HeadlessExportView final : public ExportView {
public:
    void untickExportBox(int) override {}
    void beginExport(const QString&) override {}
    void showStatus(const QString&) override {}
    void showProgressBar(const QString&) override {}
    void showProgress(double) override {}
    void hideProgressBar() override {}
    void endExport() override {}
};
