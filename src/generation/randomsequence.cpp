#include "generation/randomsequence.h"

#include <QByteArray>

std::optional<std::uint32_t> modParseSeed(const QString& text) {
    bool ok = false;
    const qlonglong value = text.trimmed().toLongLong(&ok);
    if (!ok || value < 0 || value >= RandomSequence::kStates) {
        return std::nullopt;
    }
    return static_cast<std::uint32_t>(value);
}

std::uint32_t modStartingSeed(const QDateTime& now) {
    if (const std::optional<std::uint32_t> seed =
            modParseSeed(QString::fromLocal8Bit(qgetenv("DESKO_SEED")))) {
        return *seed;
    }
    // Milliseconds of the day, spread over the whole state range.
    const auto msecs = static_cast<std::uint64_t>(now.time().msecsSinceStartOfDay());
    return static_cast<std::uint32_t>((msecs * 2654435761U) % RandomSequence::kStates);
}
