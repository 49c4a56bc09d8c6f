#pragma once

class ExportView;
class MailSession;
struct Context;
struct Workspace;

// The calendar channel: a meeting request for each shift of each agent with an address,
// mailed to that address, with the progress bar. An agent's failures, a missing address and
// each weekly shift whose time cannot be read are reported once; at the end the user may
// see them.
void exportToOutlook(Workspace& ws, Context& ctx, ExportView& view, MailSession& session);
