#pragma once

#include "ai/chooser.h"

namespace qarn {

/// The opponent of old: a stack marches, with all its items, onto an enemy square or, when no
/// attack promises enough, onto another stack of its side. Finds nothing when there is neither.
/// Needs no chance, so the seed does not count. Throws EightBitOverflow when a sum of units passes
/// 255.
std::optional<Plan> ChooseClassicMove(const Position& position, std::uint64_t seed,
                                      Thinking& thinking);

}  // namespace qarn
