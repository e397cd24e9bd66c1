#pragma once

#include <cstdint>

#include "core/happenings.h"

namespace qarn {

struct Game;
class RandomNumbers;

/// One click on square (X, Y) in attack mode: the first accepted click names the attacking square,
/// the next one the target, and the attack is carried out. A direct attack (`blnDirect`) comes from
/// a move that steps into the target. Writes `bytResult` once the target has been accepted or
/// refused for its terrain; a rejected click changes nothing but the status line.
void AttackSquare(Game& game, bool blnDirect, std::uint8_t bytX, std::uint8_t bytY,
                  AttackResult& bytResult);

/// A throw of the five-sided die: 1 to 5.
int RollDie(RandomNumbers& random);

}  // namespace qarn
