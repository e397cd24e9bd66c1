#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "core/path.h"
#include "rules/questions/step.h"

namespace qarn {

/// Where a group of the side to move can still come to in its move, with the cheapest way to each
/// square. A way ends where it joins others or attacks, and where no mobility is left. (Dijkstra's
/// shortest paths.)
class ReachMap {
public:
    /// What is known of a square that can be reached.
    struct Way {
        Square square;
        Square before;  ///< the square that the last step comes from
        std::uint8_t cost = 0;
        bool joins = false;
        bool attack = false;  ///< the last step would be a direct attack
    };

    ReachMap(const Position& position, const Occupancy& occupancy, const MovingGroup& group);

    /// The squares that can be reached, the cheapest first; the group's own is not among them.
    const Way* begin() const { return ways_.data(); }
    const Way* end() const { return ways_.data() + count_; }

    /// The cheapest way to a square that can be reached, the group's own square left out.
    Path PathTo(Square square) const;

private:
    static constexpr std::uint8_t unknown = 0xFF;

    std::uint8_t& IndexOf(Square square) { return index_[square.X][square.Y]; }
    std::uint8_t IndexOf(Square square) const { return index_[square.X][square.Y]; }
    void LookAt(const StepAnswer& step, Square from, int costSoFar, Square to);

    // Those before settled_ are in their final order.
    std::array<Way, columnCount * rowCount> ways_;
    std::size_t count_ = 0;
    std::size_t settled_ = 0;
    std::array<std::array<std::uint8_t, rowCount + 1>, columnCount + 1> index_;
    Square start_;
};

/// A square that a group can come to in one move.
struct ReachedSquare {
    Square square;
    int cost = 0;         ///< mobility units of the cheapest way there
    Path path;            ///< that way, the group's square first
    bool attack = false;  ///< the last step would be a direct attack
};

/// The squares that a group of the side to move can still reach, the cheapest first, those of equal
/// cost column by column.
std::vector<ReachedSquare> ReachOf(const Position& position, const MovingGroup& group);

}  // namespace qarn
