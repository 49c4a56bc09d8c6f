#pragma once

#include <QString>

#include <memory>

class FaceWindow;
class QLockFile;
class frmMain;
struct Context;
struct Workspace;

// What a run holds on to: the claim on its program directory, the one window and its main
// form.
struct DeskoRun {
    std::unique_ptr<QLockFile> instance;
    std::unique_ptr<FaceWindow> window;
    frmMain* main = nullptr;
};

// Starts a run in the program directory the launch names: refuses a second instance there,
// shows the splash, prepares the Workspace from the working file and the coming month, shows
// the main window and opens a schedule file named on the command line. Gives no window when
// another instance runs; the user has been told, and neither the log nor the working file
// was touched.
DeskoRun modProgramStart(Workspace& ws, Context& ctx, const QString& programFile,
                         const QString& commandLine);
