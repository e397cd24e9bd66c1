#pragma once

#include <string>

namespace qarn {

struct Game;

/// The caption of one square: the codes of the groups that it shows, in roster order, each with its
/// padding and two blanks behind it.
std::string CaptionOfSquare(const Game& game, int X, int Y);

/// Adds the code of roster entry i (1 to 24) to the caption of its square. Does nothing for an
/// entry off the board.
void PlacePeople(Game& game, int i);

/// Empties the caption of one square.
void ClearSquareCaption(Game& game, int X, int Y);

/// Shows everyone who stands on the square again, in roster order.
void RedrawSquare(Game& game, int X, int Y);

}  // namespace qarn
