#include "core/model/numbers.h"

#include <QRegularExpression>

#include <cmath>
#include <limits>

namespace {

const QRegularExpression& numberPattern() {
    static const QRegularExpression pattern(
        QStringLiteral(R"(^[+-]?([0-9]+\.?[0-9]*|\.[0-9]+)([eE][+-]?[0-9]+)?)"));
    return pattern;
}

}  // namespace

double leadingNumber(const QString& text) {
    const QString rest = text.trimmed();
    const QRegularExpressionMatch match = numberPattern().match(rest);
    if (!match.hasMatch()) {
        return 0.0;
    }
    const double value = match.captured(0).toDouble();
    return std::isfinite(value) ? value : 0.0;
}

std::optional<double> numericValue(const QString& text) {
    const QString rest = text.trimmed();
    const QRegularExpressionMatch match = numberPattern().match(rest);
    if (!match.hasMatch() || match.capturedLength(0) != rest.size()) {
        return std::nullopt;
    }
    const double value = match.captured(0).toDouble();
    if (!std::isfinite(value)) {
        return std::nullopt;
    }
    return value;
}

std::optional<int> roundToInt(double value) {
    const double rounded = std::nearbyint(value);  // the default mode rounds halves to even
    if (!(rounded >= std::numeric_limits<int>::min() &&
          rounded <= std::numeric_limits<int>::max())) {
        return std::nullopt;
    }
    return static_cast<int>(rounded);
}

std::optional<int> wholeNumber(const QString& text) {
    const std::optional<double> value = numericValue(text);
    return value ? roundToInt(*value) : std::nullopt;
}

QString decimalText(double value, int decimals) {
    QString text = QString::number(value, 'f', decimals);
    while (text.endsWith(QLatin1Char('0'))) {
        text.chop(1);
    }
    if (text.endsWith(QLatin1Char('.'))) {
        text.chop(1);
    }
    return text == QStringLiteral("-0") ? QStringLiteral("0") : text;
}
