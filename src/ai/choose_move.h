#pragma once

namespace qarn {

struct Game;

/// Has the opponent that plays the side to move choose its turn, and starts that action. Shows the
/// box "No good move!" and starts nothing when it finds nothing to do.
void ChooseMove(Game& game);

}  // namespace qarn
