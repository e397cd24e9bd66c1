#include "ai/opponents/evaluation.h"

#include <cmath>

#include "ai/opponents/weights.h"

namespace qarn {
namespace {

// An S-curve from -1 to 1.
float Softsign(float x) { return x / (1 + std::abs(x)); }

}  // namespace

float WorthOfBalance(float balance) { return (1 + Softsign(aheadCounts * balance)) / 2; }

Activation Activate(const Features& features, const Weights& weights) {
    std::array<float, Weights::hidden> hidden = weights.hiddenBias;
    float sum = weights.bias;
    for (std::size_t i = 0; i < features.size(); ++i) {
        const float feature = features[i];
        if (feature == 0) continue;
        const auto& row = weights.toHidden[i];
        for (std::size_t k = 0; k < row.size(); ++k) hidden[k] += feature * row[k];
        sum += feature * weights.past[i];
    }
    for (float& one : hidden) one = Softsign(one);
    for (std::size_t k = 0; k < Weights::hidden; ++k) sum += hidden[k] * weights.fromHidden[k];
    return {.hidden = hidden, .sum = sum, .value = (1 + Softsign(sum)) / 2};
}

float Evaluate(const Position& position, const Distances& distances, const Weights& weights) {
    const Armies armies(position, distances);
    return Activate(FeaturesOf(armies, position.bytTurn, distances), weights).value;
}

}  // namespace qarn
