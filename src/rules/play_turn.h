#pragma once

#include <optional>

#include "core/happenings.h"
#include "core/plan.h"
#include "core/position.h"

namespace qarn {

/// The throws of the five-sided die, 1 to 5, that a turn may need.
struct Dice {
    int roll = 1;        ///< of the attack
    int secondRoll = 1;  ///< after a win
};

/// What came of a turn, besides the position that follows it.
struct TurnOutcome {
    std::optional<Attacked> attack;  ///< the attack that was carried out, if any
    PeopleSet lost;                  ///< who died
    std::uint8_t winner = 0;         ///< 1 or 2 once the game is over
};

/// Plays a whole turn of the side to move, up to the moment when the next turn begins, as the
/// game's handlers do when the player presses the buttons for it and answers yes to every question.
/// A step that the rules refuse is left out; a start or an attack that they refuse changes nothing.
/// After the end of the game the position is that of the end. Throws EightBitOverflow when a sum
/// passes 255; the position is then of no use.
TurnOutcome PlayTurn(Position& position, const Plan& plan, Dice dice);

}  // namespace qarn
