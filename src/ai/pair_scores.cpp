#include "ai/pair_scores.h"

#include <algorithm>
#include <cmath>

namespace qarn {

void PairScores::Add(double score) {
    count_ += 1;
    sum_ += score;
    squares_ += score * score;
}

void PairScores::Add(const PairScores& others) {
    count_ += others.count_;
    sum_ += others.sum_;
    squares_ += others.squares_;
}

Share PairScores::Mean() const {
    if (count_ == 0) return {};
    constexpr double normalBound = 1.96;
    const double mean = sum_ / count_;
    const double reach = normalBound * std::sqrt(Variance() / count_);
    return {mean, std::max(mean - reach, 0.0), std::min(mean + reach, 1.0)};
}

double PairScores::LogLikelihoodRatio() const {
    constexpr double equal = 0.50;
    constexpr double better = 0.55;
    return (better - equal) * (sum_ - count_ * (equal + better) / 2) / Variance();
}

double PairScores::Variance() const {
    const double mean = (sum_ + 1) / (count_ + 2);
    return (squares_ + 1) / (count_ + 2) - mean * mean;
}

Verdict VerdictAt(double logLikelihoodRatio) {
    constexpr double error = 0.05;
    static const double bound = std::log((1 - error) / error);
    if (logLikelihoodRatio >= bound) return Verdict::Better;
    return logLikelihoodRatio <= -bound ? Verdict::Equal : Verdict::Open;
}

}  // namespace qarn
