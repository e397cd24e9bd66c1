#pragma once

#include <cstdint>

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

}  // namespace qarn
