#pragma once

#include <iosfwd>

#include "core/game.h"

namespace qarn {

/// Prints the board for a person: two lines a row, in each square the codes of its groups and the
/// sign of its terrain. With `colors` the squares bear the colours of the desktop's board.
void PrintBoard(std::ostream& out, const Game& game, bool colors);

/// Prints the check boxes that are on screen, the square information while it is shown, and the
/// status line.
void PrintStatus(std::ostream& out, const Game& game);

/// Prints the commands, and what the signs on the board mean.
void PrintHelp(std::ostream& out);

}  // namespace qarn
