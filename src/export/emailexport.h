#pragma once

class ExportView;
class MailSession;
struct Context;
struct Workspace;

// The e-mail channel: each agent gets a mail with his or her shifts of the month, even with
// none. An agent without an address, and a message that fails, is a results line; at the
// end the user may see them.
void exportToEmail(Workspace& ws, Context& ctx, ExportView& view, MailSession& session);
