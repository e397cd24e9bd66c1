#include "ai/choice_times.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace qarn {

void ChoiceTimes::Add(Milliseconds time, std::uint64_t positions) {
    times_.push_back(time);
    positions_ += positions;
}

void ChoiceTimes::Add(const ChoiceTimes& others) {
    positions_ += others.positions_;
    times_.insert(times_.end(), others.times_.begin(), others.times_.end());
}

ChoiceTimes::Milliseconds ChoiceTimes::Quantile(double share) const {
    if (times_.empty()) return {};
    const double rank = std::ceil(share * static_cast<double>(times_.size()));
    std::vector<Milliseconds> times = times_;
    const auto nth = times.begin() + static_cast<std::ptrdiff_t>(std::max(rank, 1.0)) - 1;
    std::nth_element(times.begin(), nth, times.end());
    return *nth;
}

double ChoiceTimes::PositionsPerSecond() const {
    const Milliseconds sum = std::accumulate(times_.begin(), times_.end(), Milliseconds());
    return sum.count() > 0 ? static_cast<double>(positions_) / (sum.count() / 1000) : 0;
}

}  // namespace qarn
