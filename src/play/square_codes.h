#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace qarn {

struct Game;

/// A code as the board shows it.
struct SquareCode {
    std::string text;       ///< without its padding
    std::uint8_t side = 0;  ///< whose it is: 1, 2, or 0 of a transport piece

    friend bool operator==(const SquareCode&, const SquareCode&) = default;
};

/// The codes that square (X, Y) shows, in roster order. While sides are shown, or large
/// codes, a crowded square has each code of its transport pieces once, with their number, as
/// "BT×3".
std::vector<SquareCode> CodesOfSquare(const Game& game, int X, int Y);

}  // namespace qarn
