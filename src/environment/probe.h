#pragma once

#include <QtGlobal>

struct Context;
struct Workspace;

// Gathers the facts about the machine into ctx.env, once at start, for the log's header: the
// user, the machine, the system and its folders, the program's volume, the memory, the
// network address, the default mail account; and checks that the user may write what the
// program writes, the one step that may speak to the user. A run without a machine to ask
// learns only what the rights check and the mail configuration tell.
void modProbeEnvironment(const Workspace& ws, Context& ctx);

// A volume's size in whole megabytes, reckoned as it always was, in 32 bits: the clusters
// are divided by 1024 first to keep the product small, and a product that still does not
// fit gives 0.
long long diskMegabytes(qint64 clusters, qint64 bytesPerCluster);

// Physical memory in whole megabytes, rounded, with the first 640 kilobytes counted in that
// systems used to keep for themselves.
long long memoryMegabytes(qint64 bytes);
