#pragma once

namespace qarn {

struct Game;

/// Decides what the side to move, played by the computer, does in its turn, and starts that action:
/// a stack marches onto an enemy square or, when no attack promises enough, onto another stack of
/// its side. Shows the box "No good move!" and starts nothing when there is neither.
void ChooseMove(Game& game);

}  // namespace qarn
