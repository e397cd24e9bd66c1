#pragma once

#include <cstdint>
#include <cstdlib>

namespace qarn {

/// The board: columns 1 to 18 and rows 1 to 10, as a player counts them. Column 0 and row 0 exist
/// in every per-square array and are never used.
inline constexpr int columnCount = 18;
inline constexpr int rowCount = 10;

/// A square of the board, or (0, 0): none.
struct Square {
    std::uint8_t X = 0;
    std::uint8_t Y = 0;

    friend constexpr bool operator==(Square, Square) = default;
};

constexpr bool IsOnBoard(int X, int Y) {
    return X >= 1 && X <= columnCount && Y >= 1 && Y <= rowCount;
}

/// How many squares lie between two squares, along columns and rows; neighbours are 1 apart.
inline int DistanceBetween(Square a, Square b) { return std::abs(a.X - b.X) + std::abs(a.Y - b.Y); }

}  // namespace qarn
