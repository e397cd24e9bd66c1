#include "ai/opponents/evaluation.h"

#include <cmath>
#include <numeric>

#include "ai/opponents/weights.h"

namespace qarn {

const Weights learnedWeights{.features = learnedFeatureWeights, .move = learnedMoveWeight};

float Evaluate(const Position& position, const Distances& distances, const Weights& weights) {
    const Features features = FeaturesOf(position, distances);
    const float sum = std::inner_product(features.begin(), features.end(), weights.features.begin(),
                                         weights.move);
    return 1 / (1 + std::exp(-sum));
}

}  // namespace qarn
