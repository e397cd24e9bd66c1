#pragma once

namespace qarn {

struct Game;

/// Writes a new game of the scenario, between the players of the game that is over, into the file
/// that this one had, and keeps their opponents for it. With `exchanged` each plays the other side.
/// Throws PlayerError when the file can not be written.
void WriteGameAgain(const Game& game, bool exchanged);

}  // namespace qarn
