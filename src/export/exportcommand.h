#pragma once

class ExportView;
class MailSession;
struct Context;
struct Workspace;

// The export command: the pre-flight, then the ticked channels in the order e-mail,
// meeting requests, Calendar Creator, each ending with its results question. While the
// channels run, "Leave empty" cells of working days hold blanks, which match no agent; after
// them every cell of blanks says "Leave empty" again. The mail channels send through the
// session, which opens at their first message. Once the program is ending, no channel and no
// message begins and nothing more is asked; the cells are back when the command returns.
void cmdExport(Workspace& ws, Context& ctx, ExportView& view, MailSession& session);
