#pragma once

class Surface;
struct Context;
struct Workspace;

// Slips to cut apart, one for each agent: the name in bold and beneath it a line for each
// duty of the month. Portrait pages in an even grid of as many slips as fit, the agents down
// the first column, then the next; each page a document of its own. A slip too large for a
// page is printed one to a page, cut at the page's edge.
void printTearsheet(Workspace& ws, Surface& printer);
