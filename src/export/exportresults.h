#pragma once

#include <QString>

struct Context;
struct SendFailure;

// A channel's results are its failure lines, each after a line break, in the order met.

void addResult(QString& results, const QString& line);

// Adds the line unless the key, case ignored, already stands anywhere in the results, so
// that an agent or a shift that fails again and again is reported once. True when added.
bool addResultOnce(QString& results, const QString& key, const QString& line);

// How a results line ends for a failed send: "  (" and the description and ")", or, with no
// description, "  (error " and the number and ")".
QString failureBracket(const SendFailure& failure);

// At the end of a channel with failures: the channel's question, and on Yes the results in a
// box of their own. Once the program is ending, nothing is asked.
void offerResults(Context& ctx, const QString& results, const QString& question);
