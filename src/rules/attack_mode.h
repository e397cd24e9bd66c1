#pragma once

#include "core/game.h"

namespace qarn {

/// Enters attack mode and keeps the move under way, for the attack that it leads to.
void EnterAttackMode(Game& game);

/// The button "&Attack" / "&Retreat": enters attack mode and abandons any move, or leaves it and
/// forgets the chosen attacker. The game itself leaves attack mode through it once an attack is over.
void cmdAttack_Click(Game& game);

}  // namespace qarn
