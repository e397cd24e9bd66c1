#pragma once

#include <cstddef>
#include <vector>

#include "ai/opponents/turns.h"

namespace qarn {

/// A turn and what it is expected to be worth to the side that takes it, 0 to 1.
struct RatedTurn {
    Turn turn;
    float value = 0;
};

/// Puts the best turns first; those of the same value stay in their order.
void SortByValue(std::vector<RatedTurn>& turns);

/// Of turns that stand the best first, keeps the first `most`, but of the marches of the same
/// people that attack nobody no more than `alike`.
void KeepBest(std::vector<RatedTurn>& turns, std::size_t most, std::size_t alike);

}  // namespace qarn
