#pragma once

#include <functional>

class QApplication;
struct Launch;

// A whole run of the program on the application object: the services, the start-up, and
// the event loop until the program ends by one of its two roads. afterStart, when given,
// runs once the main window is up.
int runProgram(QApplication& app, const Launch& launch,
               const std::function<void()>& afterStart = {});
