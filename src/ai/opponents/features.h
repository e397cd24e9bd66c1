#pragma once

#include <array>

#include "ai/opponents/armies.h"

namespace qarn {

/// What the evaluation knows of one side; the opponent's numbers stand beside it. A strike is an
/// attack by one stack on another; its worth is the strength that falls by expectation, less what
/// it costs. Vulnerable is who can be beaten, by the share of the die's numbers.
enum Feature : std::size_t {
    Characters,        ///< how many are left
    StrengthLeft,      ///< their attack and defense together
    BestStack,         ///< attack of the strongest square
    BestStackDefense,  ///< ... and its defense
    BestStackReach,    ///< ... and its mobility
    BestStackFiller,   ///< ... and the strength of its weakest, whom a loss would cost
    BestFour,          ///< attack of the four best, wherever they are
    Strike,            ///< what the best strike of this turn is worth
    SecondStrike,      ///< the best strike on another square
    Strikes,           ///< those on all squares
    StrikesNext,       ///< the same with two turns to come there
    StrikesLater,      ///< ... with four
    Pursuit,           ///< the enemies that stacks can beat, less for each turn of the way
    Hunt,              ///< the same for teams that have yet to gather
    HuntBest,          ///< the best prey alone
    OpenToStack,       ///< strength that the best enemy stack beats, wherever it stands
    OpenToFour,        ///< ... that the four best enemies would beat
    Safe,              ///< strength that not even these can hurt
    Gathered,          ///< how near the others are to the best stack
    Stranded,          ///< characters from whom no way leads to the best stack
    Cover,             ///< defense units of the terrain beneath
    Stacks,            ///< squares held
    FullStacks,        ///< of four or more
    Loners,            ///< characters on their own
    Pairs,             ///< ... in twos
    Sailors,           ///< ... with a boat at hand
    featureCount,
};

/// Where the balance of strengths stands, after the features of both sides.
inline constexpr std::size_t balanceFeature = 2 * featureCount;

/// The features of the side to move first, then those of the other, each about 0 to 1; and the
/// balance of their strengths, 0 when they are equal.
using Features = std::array<float, 2 * featureCount + 1>;

/// What an attack of so many units on a stack is worth: the strength that falls by expectation,
/// less what it costs attackers of whom the weakest has this strength.
float WorthOfStrike(int attack, int weakest, const Stack& enemy);

/// The balance of strengths, as the side sees it.
float BalanceOf(const Armies& armies, std::uint8_t side);

/// The features of two armies of which the one of `side` is to move.
Features FeaturesOf(const Armies& armies, std::uint8_t side, const Distances& distances);

}  // namespace qarn
