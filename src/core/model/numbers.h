#pragma once

#include <QString>

#include <optional>

// The number a text begins with, after leading blanks; 0 when it begins with none.
double leadingNumber(const QString& text);

// The value of a text that is a decimal number as a whole, blanks around it allowed:
// "12", " -3 ", "2.5", "1e3". Nothing for any other text.
std::optional<double> numericValue(const QString& text);

// A numeric text as a whole number, halves rounded to the even neighbour, as the file's
// numbers have always been read. Nothing for other texts and for values beyond 32 bits.
std::optional<int> wholeNumber(const QString& text);

// Rounds halves to the even neighbour; nothing when the value does not fit 32 bits.
std::optional<int> roundToInt(double value);

// A number with at most the given decimals and no trailing zeros, "12", "7.5", never "-0".
QString decimalText(double value, int decimals);
