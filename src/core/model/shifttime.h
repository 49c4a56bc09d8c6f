#pragma once

#include <QString>

#include <optional>

// Reads a shift's free time text, such as "9am-11:30am", into a start and an end time in the
// form "hh:mm AM". True on success; on any failure False, with start and end empty.
bool modInterpretShiftTime(QString text, QString& start, QString& end);

// The word for the last digit of a shift number: "first" .. "ninth", empty for 0. The
// caller's variable is reduced to that digit (it stays 0 for 0).
QString modOrdinalWord(int& n);

// The minutes after midnight of a time of day as the reader gives it, "09:30 PM": an hour of
// one or two digits from 1 to 12, optionally ":" and minutes, then ":" and seconds (0 to 59,
// one or two digits each), a blank and AM or PM; 12 AM is midnight. Nothing for any other
// text.
std::optional<int> minutesOfDay(const QString& time);
