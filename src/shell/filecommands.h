#pragma once

#include <QString>

class MainView;
struct Context;
struct Workspace;

// The File menu's commands and the open of a file named on the command line. There is no
// plain Save: every save asks for a name, and the file in use is remembered only as the tag
// in the caption. The working file is kept up on its own; Save As never writes it.

// File New. Offers to save a changed workspace first, then erases the month's data and the
// restrictions. The agents, the weekly table, fonts, copies, the print boxes and the month
// stay, and the caption goes on naming the last file.
void newSchedule(Workspace& ws, Context& ctx, MainView& view);

// File Open. Offers to save a changed workspace first, asks for a schedule file and opens
// it; a file with a schedule goes on to the review.
void openScheduleFile(Workspace& ws, Context& ctx, MainView& view);

// File Save As. Asks for a name and saves the whole workspace under it. A name of more than
// three characters gets ".dko" unless it ends so. gSaveDone tells the commands that offered
// the save on their way whether it completed; a cancel changes neither it nor gDirty.
void saveScheduleAs(Workspace& ws, Context& ctx, MainView& view);

// What every road in does with a schedule file: reads it into the Workspace, names it in the
// caption, keeps the working file in step and counts the workspace as saved. False when the
// file was refused; the rest happens all the same, so the caption then names the refused
// file over the workspace that was there.
bool openSchedule(Workspace& ws, Context& ctx, const QString& path);

// The start's open of a file named on the command line: the review always follows, also
// for a file without a schedule. A hidden file is not opened, and the window stays busy with
// its status until it next becomes active. path becomes "0".
void modOpenFromCommandLine(Workspace& ws, Context& ctx, MainView& view, QString& path);
