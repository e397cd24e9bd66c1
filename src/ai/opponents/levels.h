#pragma once

#include "ai/chooser.h"

namespace qarn {

/// Sees one turn ahead, and errs now and then as a beginner does: in one turn of four it takes any
/// of the better half.
std::optional<Plan> ChooseScoutTurn(const Position& position, std::uint64_t seed,
                                    Thinking& thinking);

/// Sees the opponent's best answers to its better turns, and reckons that it misses half of them.
std::optional<Plan> ChooseCaptainTurn(const Position& position, std::uint64_t seed,
                                      Thinking& thinking);

/// Sees the best answers to more turns, and its own next turn after them; reckons that the opponent
/// misses few.
std::optional<Plan> ChooseWarlordTurn(const Position& position, std::uint64_t seed,
                                      Thinking& thinking);

}  // namespace qarn
