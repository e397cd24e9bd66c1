#pragma once

#include <cstdint>

#include "core/happenings.h"

namespace qarn {

inline constexpr int dieSides = 5;
/// The second roll after a win that costs the attackers a character.
inline constexpr int rollThatCosts = 3;

/// True when the attackers have so few units that the player is asked whether to go on.
constexpr bool AreOddsBad(int attack, int defense) { return attack <= defense + 2; }

/// The number of the die that ties: lower ones win and higher ones lose. 0 when every roll loses.
/// `attack` and `defense` are units, terrain included.
constexpr int ThresholdOf(int attack, int defense) {
    return attack > defense ? (attack - defense) / 2 : 0;
}

/// What a roll of the die, 1 to 5, makes of an attack with this threshold.
constexpr AttackResult ResultOfRoll(int roll, int threshold) {
    if (roll < threshold) return AttackResult::Won;
    return roll == threshold ? AttackResult::Tie : AttackResult::Lost;
}

/// The exact chances of an attack, in fifths: how many of the five numbers of the die do it.
struct Odds {
    int win = 0;
    int tie = 0;
    int lose = 0;
    int lossAfterWin = 0;  ///< of the numbers of the second roll, which follows a win

    friend constexpr bool operator==(const Odds&, const Odds&) = default;
};

/// The odds of an attack of so many attack units against so many defense units, terrain included.
Odds OddsOf(int attack, int defense);

}  // namespace qarn
