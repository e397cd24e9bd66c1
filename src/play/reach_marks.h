#pragma once

#include <cstdint>
#include <vector>

#include "core/square.h"

namespace qarn {

struct Game;

/// What a person looks at.
struct Look {
    Square square;         ///< (0, 0): none
    bool strikes = false;  ///< the person asks where the enemy could strike

    friend bool operator==(const Look&, const Look&) = default;
};

/// What a square is marked with while reach is shown.
enum class ReachKind : std::uint8_t {
    Reached,
    Attacked,  ///< reached by a direct attack
    Struck,    ///< the enemy could strike here
};

struct ReachMark {
    Square square;
    ReachKind kind = ReachKind::Reached;
    std::uint8_t cost = 0;  ///< mobility units of the cheapest way; 0 of a strike

    friend bool operator==(const ReachMark&, const ReachMark&) = default;
};

/// The marks of a game: where the group in move can still go; between moves, where the enemy could
/// strike in its next turn, or where the stack that is looked at could go. None while reach is not
/// shown, while the computer moves a group, and where a sum would pass 255.
std::vector<ReachMark> ReachMarks(const Game& game, const Look& look);

}  // namespace qarn
