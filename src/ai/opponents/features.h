#pragma once

#include <array>

#include "ai/opponents/distances.h"
#include "core/position.h"

namespace qarn {

/// What the evaluation knows of one side; the opponent's numbers stand beside it.
enum Feature : std::size_t {
    Characters,    ///< how many are left
    StrengthLeft,  ///< their attack and defense together
    BestStack,     ///< attack units of the strongest square
    BestFour,      ///< attack units of the four best, wherever they are
    Strikes,       ///< what the best attack of this turn is worth
    MoreStrikes,   ///< what the attacks of this turn are worth together
    LaterStrikes,  ///< the same with twice the mobility
    SafeStrength,  ///< strength of the squares that no enemy square can beat
    Gathered,      ///< how near the others are to the best stack
    Pursuit,       ///< how near the best stack is to a square that it beats
    Cover,         ///< defense units of the terrain beneath
    Stranded,      ///< characters from whom no way leads to the best stack
    featureCount,
};

/// The features of the side to move first, then those of the other; each about 0 to 1.
using Features = std::array<float, 2 * featureCount>;

/// The features of a position. `distances` are those of its terrain, or of one that differs in a
/// few squares.
Features FeaturesOf(const Position& position, const Distances& distances);

}  // namespace qarn
