#pragma once

#include <vector>

#include "rules/questions/step.h"

namespace qarn {

/// A square that a group can come to in one move.
struct ReachedSquare {
    Square square;
    int cost = 0;              ///< mobility units of the cheapest way there
    std::vector<Square> path;  ///< that way, the group's square first
    bool attack = false;       ///< the last step would be a direct attack
};

/// The squares that a group of the side to move can still reach, the cheapest first, squares of
/// equal cost column by column. A way ends where it joins others or attacks. (Dijkstra's
/// shortest paths.)
std::vector<ReachedSquare> ReachOf(const Position& position, const MovingGroup& group);

}  // namespace qarn
