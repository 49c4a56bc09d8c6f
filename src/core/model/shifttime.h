#pragma once

#include <QString>

// Reads a shift's free time text, such as "9am-11:30am", into a start and an end time in the
// form "hh:mm AM". True on success; on any failure False, with start and end empty.
bool modInterpretShiftTime(QString text, QString& start, QString& end);

// The word for the last digit of a shift number: "first" .. "ninth", empty for 0. The
// caller's variable is reduced to that digit (it stays 0 for 0).
QString modOrdinalWord(int& n);
