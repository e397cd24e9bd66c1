#pragma once

#include <vector>

namespace qarn {

struct GameRecord;

/// What a square is in the move or the attack that is under way.
enum class SquareRole {
    Start,   ///< where the move began; the group has gone on
    Acting,  ///< where the moving group or the attackers stand, whose items may be listed
    Target,  ///< what is attacked
};

struct MarkedSquare {
    int X;  ///< 1 to 18
    int Y;  ///< 1 to 10
    SquareRole Role;

    friend bool operator==(const MarkedSquare&, const MarkedSquare&) = default;
};

/// The squares that are marked while a move or an attack is under way, each of them once; none
/// between moves.
std::vector<MarkedSquare> MarkedSquares(const GameRecord& record);

}  // namespace qarn
