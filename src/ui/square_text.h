#pragma once

#include <QString>

namespace qarn {

struct Game;

/// Square (X, Y) in words, for those who hear the board: its coordinates, terrain and groups.
QString NameOfSquare(const Game& game, int X, int Y);

/// What the tool tip of square (X, Y) tells: where it is, its terrain, and the groups on it with
/// their strengths, one a line.
QString TipOfSquare(const Game& game, int X, int Y);

}  // namespace qarn
