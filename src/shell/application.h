#pragma once

#include <functional>

class QApplication;

// A whole run of the program on the application object: the services, the start-up, and
// the event loop until the program ends by one of its two roads. afterStart, when given,
// runs once the main window is up.
int modRunProgram(QApplication& app, const std::function<void()>& afterStart = {});
