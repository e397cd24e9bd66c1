#pragma once

#include <chrono>
#include <vector>

namespace qarn {

/// How long a player took over its choices.
class ChoiceTimes {
public:
    using Milliseconds = std::chrono::duration<double, std::milli>;

    void Add(Milliseconds time) { times_.push_back(time); }
    void Add(const ChoiceTimes& others);

    /// The time that so much of the choices, 0 to 1, did not pass: 0.5 gives the median, 1 the
    /// worst. Zero when there was no choice.
    Milliseconds Quantile(double share) const;

private:
    std::vector<Milliseconds> times_;
};

}  // namespace qarn
