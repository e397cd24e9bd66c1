#pragma once

#include <cstdint>

#include "core/position.h"

namespace qarn {

/// Why no move of the side to move can start on a square.
enum class StartRefusal : std::uint8_t {
    None,
    NobodyThere,
    OnlyTransports,
    OpponentsPieces,  ///< the first of those who could act there is the opponent's, or nobody could
};

/// Whether a move of the side to move can start on the square.
StartRefusal AskStart(const Position& position, Square square);

/// Those who act on a square whom the check boxes list, the first eleven: who can be chosen to
/// move, or to have died.
PeopleSet ListedOn(const Position& position, Square square);

/// A square from which the side to move can pass, by a move that ends where it starts: one whose
/// stack need not return to it, if there is any.
Square SquareToPassFrom(const Position& position);

}  // namespace qarn
