#pragma once

#include <functional>

// The yields of the long commands to pending events, and the end of the program that the user
// can ask for during one by closing the window. A long command runs inside runCommand. A close
// that comes while it runs does not close over it: the end is asked for, and from then on
// every yield tells the command that the program is ending. The command stops there: it sends,
// prints, asks and logs nothing more, and puts back what it changed for its own time. Once it
// has returned, runCommand says so, and the window takes its close road.
class Events {
public:
    // What lets pending events run: the window's event loop. Where nothing is given, as where
    // there is no window, a yield runs nothing.
    std::function<void()> run;

    // Lets pending events run; false once the program is ending, and then nothing runs.
    bool doEvents();
    bool ending() const { return ending_; }

    // Runs a long command, or nothing once the program is ending. True when the end was asked
    // for meanwhile and no command runs any more: the window's close is then to be taken.
    bool runCommand(const std::function<void()>& command);
    // The window's close box: while a command runs, the end is asked for and true comes back,
    // the close to wait for the command; else false, and the window closes now.
    bool putOffClose();

private:
    int commands_ = 0;
    bool ending_ = false;
};
