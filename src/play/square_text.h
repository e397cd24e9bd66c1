#pragma once

#include <cstdint>
#include <string>

namespace qarn {

struct Game;
struct GameRecord;

/// What side 1 or 2 is called: its player's name, or the side's where the player has none.
std::string NameOfSide(const GameRecord& record, std::uint8_t side);

/// Square (X, Y) in words, for those who hear the board: its coordinates, terrain and groups; while
/// sides are shown, their owners and strengths too. While reach is shown, what the group in move
/// would meet with there.
std::string NameOfSquare(const Game& game, int X, int Y);

/// What the tool tip of square (X, Y) tells: where it is, its terrain, and the groups on it with
/// their strengths, one a line; while sides are shown, their owners too. While reach is shown, what
/// the group in move would meet with there; while odds are shown, what an attack would come to.
std::string TipOfSquare(const Game& game, int X, int Y);

}  // namespace qarn
