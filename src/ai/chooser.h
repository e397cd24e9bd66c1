#pragma once

#include <cstdint>
#include <optional>
#include <stop_token>

#include "core/plan.h"
#include "core/position.h"

namespace qarn {

/// What a chooser is told while it thinks, and what it tells about its work.
struct Thinking {
    std::stop_token decideNow;    ///< when it is stopped: answer soon, with the best found so far
    std::uint64_t positions = 0;  ///< how many positions were evaluated
};

/// Decides what the side to move does in its turn; nothing when it finds nothing to do. Unless it
/// is told to decide now, the same position and seed give the same plan everywhere. It may run on
/// another thread than the game's.
using Chooser = std::optional<Plan> (*)(const Position& position, std::uint64_t seed,
                                        Thinking& thinking);

}  // namespace qarn
