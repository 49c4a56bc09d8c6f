#pragma once

#include "shell/mainview.h"

#include <QStringList>

// The main window as the command flows see it, keeping what they asked of it in turn:
// "busy: <status>", "normal", "opened" and "review".
class RecordingView final : public MainView {
public:
    QStringList asked;

    void beginLongCommand(const QString& status) override {
        asked.append(QStringLiteral("busy: ") + status);
    }
    void modLeaveBusyState() override { asked.append(QStringLiteral("normal")); }
    void showOpenedSchedule() override { asked.append(QStringLiteral("opened")); }
    void showReview() override { asked.append(QStringLiteral("review")); }
};
