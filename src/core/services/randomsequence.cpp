#include "core/services/randomsequence.h"

std::optional<std::uint32_t> parseSeed(const QString& text) {
    bool ok = false;
    const qlonglong value = text.trimmed().toLongLong(&ok);
    if (!ok || value < 0 || value >= RandomSequence::kStates) {
        return std::nullopt;
    }
    return static_cast<std::uint32_t>(value);
}

std::uint32_t startingSeed(const QDateTime& now, std::optional<std::uint32_t> seed) {
    if (seed) {
        return *seed;
    }
    // Milliseconds of the day, spread over the whole state range.
    const auto msecs = static_cast<std::uint64_t>(now.time().msecsSinceStartOfDay());
    return static_cast<std::uint32_t>((msecs * 2654435761U) % RandomSequence::kStates);
}
