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
    Activation activation{.hidden = weights.hiddenBias, .sum = weights.bias};
    for (std::size_t i = 0; i < features.size(); ++i) {
        const float feature = features[i];
        if (feature == 0) continue;
        const auto& row = weights.toHidden[i];
        for (std::size_t k = 0; k < row.size(); ++k) activation.hidden[k] += feature * row[k];
        activation.sum += feature * weights.past[i];
    }
    for (std::size_t k = 0; k < Weights::hidden; ++k) {
        activation.hidden[k] = Softsign(activation.hidden[k]);
        activation.sum += activation.hidden[k] * weights.fromHidden[k];
    }
    activation.value = (1 + Softsign(activation.sum)) / 2;
    return activation;
}

float Evaluate(const Position& position, const Distances& distances, const Weights& weights) {
    const Armies armies(position, distances);
    return Activate(FeaturesOf(armies, position.bytTurn, distances), weights).value;
}

}  // namespace qarn
