#pragma once

#include "export/exportview.h"

#include <QStringList>

// The main window as the export sees it, keeping what it was asked in turn: "untick 3",
// "begin: <status>", "status: <text>", "bar: <text>", "no bar" and "end"; the progress last
// shown apart.
class RecordingExportView final : public ExportView {
public:
    QStringList asked;
    double progress = 0.0;

    void untickExportBox(int box) override { asked.append(QStringLiteral("untick %1").arg(box)); }
    void beginExport(const QString& status) override {
        asked.append(QStringLiteral("begin: ") + status);
    }
    void showStatus(const QString& text) override {
        asked.append(QStringLiteral("status: ") + text);
    }
    void showProgressBar(const QString& text) override {
        asked.append(QStringLiteral("bar: ") + text);
    }
    void showProgress(double share) override { progress = share; }
    void hideProgressBar() override { asked.append(QStringLiteral("no bar")); }
    void doEvents() override {}
    void endExport() override { asked.append(QStringLiteral("end")); }
};
