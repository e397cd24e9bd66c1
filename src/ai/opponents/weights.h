#pragma once

// Learned by tools/train_evaluation in 2892 games with seed 1; do not edit.

#include "ai/opponents/features.h"

namespace qarn {

inline constexpr Features learnedFeatureWeights{
    // the side to move
    1.5592F,
    1.9218F,
    0.1115F,
    1.3283F,
    0.6170F,
    -0.1595F,
    0.2252F,
    0.3013F,
    0.4094F,
    0.0710F,
    -0.0377F,
    0.2448F,
    // the other side
    -1.6507F,
    -1.7922F,
    -0.4006F,
    -1.1482F,
    -0.3337F,
    0.0378F,
    -0.1634F,
    -0.3630F,
    -0.2724F,
    -0.0822F,
    -0.0528F,
    -0.1444F,
};
inline constexpr float learnedMoveWeight = 0.0439F;

}  // namespace qarn
