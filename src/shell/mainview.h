#pragma once

#include <QString>

// What the command flows ask of the main window while they run. The window carries it out;
// the tests record it.
class MainView {
public:
    virtual ~MainView() = default;
    // A long command begins: its status stands in the month's place, the window goes busy
    // and the hourglass shows.
    virtual void beginLongCommand(const QString& status) = 0;
    // The window's normal face, rebuilt from the Workspace.
    virtual void modLeaveBusyState() = 0;
    // The agent list, the print boxes and the engine list show the Workspace just read.
    virtual void showOpenedSchedule() = 0;
    // The review of the schedule takes the window's place; the window stays busy behind it.
    virtual void showReview() = 0;
};
