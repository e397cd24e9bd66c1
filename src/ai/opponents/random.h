#pragma once

#include <cstdint>
#include <optional>

#include "core/plan.h"
#include "core/position.h"

namespace qarn {

/// Takes any of the turns of ListTurns, each as likely as the others: what an opponent that plays
/// at all has to beat.
std::optional<Plan> ChooseRandomTurn(const Position& position, std::uint64_t seed);

}  // namespace qarn
