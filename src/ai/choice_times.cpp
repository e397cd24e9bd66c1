#include "ai/choice_times.h"

#include <algorithm>
#include <cmath>

namespace qarn {

void ChoiceTimes::Add(const ChoiceTimes& others) {
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

}  // namespace qarn
