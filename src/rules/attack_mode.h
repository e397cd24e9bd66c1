#pragma once

namespace qarn {

struct Game;

/// Enters attack mode.
void EnterAttackMode(Game& game);

/// The button "&Attack" / "&Retreat": enters attack mode, or leaves it and forgets the chosen
/// attacker. The game itself leaves attack mode through it once an attack is over.
void cmdAttack_Click(Game& game);

}  // namespace qarn
