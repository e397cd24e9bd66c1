#pragma once

#include "ai/chooser.h"

namespace qarn {

/// Takes any of the turns of ListTurns, each as likely as the others: what an opponent that plays
/// at all has to beat.
std::optional<Plan> ChooseRandomTurn(const Position& position, std::uint64_t seed,
                                     Thinking& thinking);

}  // namespace qarn
