#pragma once

#include "ai/opponents/features.h"

namespace qarn {

/// One weight for each feature, and one for the side that has the move.
struct Weights {
    Features features{};
    float move = 0;
};

/// The weights that were learned by self-play (see weights.h, which tells the command).
extern const Weights learnedWeights;

/// How likely the side to move is to win: the logistic function of the weighted features, 0 to 1.
float Evaluate(const Position& position, const Distances& distances, const Weights& weights);

}  // namespace qarn
