#pragma once

#include <cstdint>
#include <stdexcept>

#include "core/square.h"

namespace qarn {

/// The directions of the computer's paths.
enum Direction : std::uint8_t { Up = 1, Right = 2, Down = 3, Left = 4 };

/// Moves (X, Y) one square in the direction. Any other code moves nothing.
template <typename Coordinate>
constexpr void MoveOneSquare(std::uint8_t direction, Coordinate& X, Coordinate& Y) {
    switch (direction) {
        case Up:
            --Y;
            break;
        case Right:
            ++X;
            break;
        case Down:
            ++Y;
            break;
        case Left:
            --X;
            break;
        default:
            break;
    }
}

/// The direction from a square to its neighbour. Throws std::invalid_argument for any other square.
constexpr Direction DirectionBetween(Square from, Square to) {
    for (const Direction direction : {Up, Right, Down, Left}) {
        Square next = from;
        MoveOneSquare(direction, next.X, next.Y);
        if (next == to) return direction;
    }
    throw std::invalid_argument("The squares of a path are no neighbours.");
}

}  // namespace qarn
