#pragma once

#include <chrono>
#include <cstdint>
#include <vector>

namespace qarn {

/// How long a player took over its choices, and how many positions it evaluated.
class ChoiceTimes {
public:
    using Milliseconds = std::chrono::duration<double, std::milli>;

    void Add(Milliseconds time, std::uint64_t positions);
    void Add(const ChoiceTimes& others);

    /// The time that so much of the choices, 0 to 1, did not pass: 0.5 gives the median, 1 the
    /// worst. Zero when there was no choice.
    Milliseconds Quantile(double share) const;

    /// Over all choices; 0 when none took any time.
    double PositionsPerSecond() const;

private:
    std::vector<Milliseconds> times_;
    std::uint64_t positions_ = 0;
};

}  // namespace qarn
