#pragma once

namespace qarn {

struct Game;

/// Square-information mode on: a click on a square shows what stands there. Remembers the status
/// line and which of the move, attack and selecting buttons are enabled, and disables these.
void EnterDetailsMode(Game& game);

/// Square-information mode off: puts back what was remembered and hides the quick information.
/// Does nothing while the mode is off.
void LeaveDetailsMode(Game& game);

}  // namespace qarn
