#pragma once

#include "ai/opponents/features.h"

namespace qarn {

/// A network of one hidden layer over the features, with a way past it.
struct Weights {
    static constexpr std::size_t inputs = std::tuple_size_v<Features>;
    static constexpr std::size_t hidden = 16;

    std::array<std::array<float, hidden>, inputs> toHidden{};
    std::array<float, hidden> hiddenBias{};
    std::array<float, hidden> fromHidden{};
    std::array<float, inputs> past{};
    float bias = 0;
};

/// The weights that were learned by practice (see weights.h, which tells the command).
extern const Weights learnedWeights;

/// What goes on in the network on the way to its answer.
struct Activation {
    std::array<float, Weights::hidden> hidden{};
    float sum = 0;    ///< of everything that comes in at the end
    float value = 0;  ///< how likely the side to move is to win, 0 to 1
};

/// What the network makes of the features. Its curves are made by arithmetic alone, so that the
/// same position has the same value, to the last bit, on every machine.
Activation Activate(const Features& features, const Weights& weights);

/// How much more it counts to be ahead in strengths than by how much.
inline constexpr float aheadCounts = 3;

/// What a balance of strengths is worth, 0 to 1: for a small balance the share in the strengths of
/// both sides, its distance from a half made `aheadCounts` times as large.
float WorthOfBalance(float balance);

/// How likely the side to move is to win a position, 0 to 1.
float Evaluate(const Position& position, const Distances& distances, const Weights& weights);

}  // namespace qarn
