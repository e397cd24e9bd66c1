#pragma once

#include "core/position.h"

namespace qarn {

struct Game;

/// Writes the start of scenario 1 to 12 into a game that is still empty; nobody has the turn yet.
/// Throws std::out_of_range for another scenario.
void SetUpNewGame(Game& game, int scenario);

/// The same as a position.
Position StartOf(int scenario);

}  // namespace qarn
