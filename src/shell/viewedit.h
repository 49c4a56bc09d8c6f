#pragma once

#include <QString>
#include <QStringList>

#include <optional>

// The forms that the view/edit list and the Edit menu open.
enum class ViewForm { Schedule, DailyShifts, AllConstraints, FontsAndPrinter };

// The form an entry of the view/edit list names; nothing for any other text.
std::optional<ViewForm> viewFormNamed(const QString& item);

struct Workspace;

// The entries of the view/edit list for the Workspace as it stands: "Schedule" when there
// is one, the daily shifts, "All constraints" when a constraint exists, the printer setup.
QStringList viewEditItems(const Workspace& ws);
