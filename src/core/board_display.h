#pragma once

#include "core/game.h"

namespace qarn {

/// Adds the code of roster entry i (1 to 24) to the caption of its square. Does nothing for an
/// entry off the board.
void PlacePeople(Game& game, int i);

/// Empties the caption of one square.
void ClearSquareCaption(Game& game, int X, int Y);

/// Shows everyone who stands on the square again, in roster order.
void RedrawSquare(Game& game, int X, int Y);

}  // namespace qarn
