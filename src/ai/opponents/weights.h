#pragma once

// Made by tools/train_evaluation; do not edit.

#include "ai/opponents/features.h"

namespace qarn {

inline constexpr Features learnedFeatureWeights{
    // the side to move
    1.0F,
    1.0F,
    0.2F,
    0.5F,
    2.0F,
    0.5F,
    0.3F,
    0.3F,
    0.3F,
    0.5F,
    0.1F,
    -0.3F,
    // the other side
    -1.0F,
    -1.0F,
    -0.2F,
    -0.5F,
    -2.0F,
    -0.5F,
    -0.3F,
    -0.3F,
    -0.3F,
    -0.5F,
    -0.1F,
    0.3F,
};
inline constexpr float learnedMoveWeight = 0.0F;

}  // namespace qarn
