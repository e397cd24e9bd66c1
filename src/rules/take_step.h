#pragma once

namespace qarn {

struct Game;

/// Takes the moving group one step onto the current square, or says on the status line why not.
void TakeStep(Game& game);

/// Puts the selected bird back onto the starting square of its move.
void ReturnToStart(Game& game);

}  // namespace qarn
