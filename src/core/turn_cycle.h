#pragma once

namespace qarn {

struct Game;

/// Starts the turn cycle of a game that has just been loaded: draws the first side of a new game,
/// shows whose turn it is and starts the computer when it plays that side.
void StartTurns(Game& game);

/// Hands the turn to the other side when `switchSide` is true, then shows whose turn it is and
/// starts the computer when it plays that side.
void ShowTurn(Game& game, bool switchSide);

}  // namespace qarn
