#pragma once

#include <QDateTime>

#include <cstdint>
#include <optional>

// The program's one random sequence: a 24-bit linear congruential sequence whose draws are
// uniform single-precision numbers in [0, 1). Every draw the program makes comes from it, so
// a run started from a known state repeats draw for draw.
class RandomSequence {
public:
    static constexpr std::uint32_t kStates = 1U << 24;

    RandomSequence() = default;
    explicit RandomSequence(std::uint32_t state) : state_(state % kStates) {}

    // The next number in [0, 1).
    float next() {
        state_ = static_cast<std::uint32_t>(
            (static_cast<std::uint64_t>(state_) * 1140671485U + 12820163U) % kStates);
        return static_cast<float>(state_) / static_cast<float>(kStates);
    }

    // An agent number 1..count from the next draw, the product taken in double precision.
    int drawAgent(int count) { return static_cast<int>(static_cast<double>(next()) * count + 1); }

    std::uint32_t state() const { return state_; }
    void setState(std::uint32_t state) { state_ = state % kStates; }

private:
    std::uint32_t state_ = 0;
};

// The state a run starts from: the seed it was given, else one taken from the time of day.
std::uint32_t startingSeed(const QDateTime& now, std::optional<std::uint32_t> seed);

// A seed given as text, 0..16777215; nothing for anything else.
std::optional<std::uint32_t> parseSeed(const QString& text);
