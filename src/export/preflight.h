#pragma once

#include <QString>

#include <optional>

class ExportView;
struct Context;
struct Workspace;

// The export boxes among the six print and export boxes.
inline constexpr int kEmailBox = 3;
inline constexpr int kOutlookBox = 4;
inline constexpr int kCreatorBox = 5;

// Whether an export box is ticked; a greyed box is not.
bool exportBoxTicked(const Workspace& ws, int box);

// What the pre-flight settled for the export to run.
struct ExportPlan {
    QString creatorFile;  // the Calendar Creator file chosen, when that box is ticked
};

// Everything that can be asked or refused before anything goes out, so that the user can
// still stop at no cost: with no account to mail from, the e-mail box is unticked; with no
// sender for meeting requests, the calendar box; agents without an address and weekly
// shifts whose time cannot be read are listed with a question; the Calendar Creator file is
// chosen. Nothing when the export stops here: no box ticked, a No, or a cancelled file
// dialog. The unticking stays either way.
std::optional<ExportPlan> exportPreflight(Workspace& ws, Context& ctx, ExportView& view);
