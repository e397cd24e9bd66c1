#pragma once

#include <cstdint>
#include <iosfwd>
#include <vector>

#include "train_evaluation/practice_game.h"

namespace qarn {

/// Brings the weights of the evaluation nearer to what games have taught. (Stochastic gradient
/// descent on the cross entropy with the steps of Adam; Kingma and Ba, "Adam: a method for
/// stochastic optimization", 2015.)
class Learner {
public:
    /// Starts with small weights drawn from the seed.
    explicit Learner(std::uint64_t seed);

    const Weights& Now() const { return weights_; }

    /// Learns each lesson once, in this order. `rate` is the size of a step, 0.001 or so. Gives the
    /// mean cross entropy before.
    float Learn(const std::vector<const Lesson*>& lessons, float rate);

    /// Everything that has to be kept to go on later. Read throws std::runtime_error on a stream
    /// that Write has not written.
    void Write(std::ostream& out) const;
    void Read(std::istream& in);

private:
    void AddGradient(const Lesson& lesson, Weights& gradient) const;
    void Step(const Weights& gradient, float rate);

    Weights weights_;
    Weights mean_;    // of the gradient
    Weights square_;  // of the gradient's square
    long steps_ = 0;
};

}  // namespace qarn
