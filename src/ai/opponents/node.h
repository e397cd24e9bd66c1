#pragma once

#include "ai/opponents/armies.h"
#include "ai/opponents/turns.h"
#include "rules/play_turn.h"

namespace qarn {

/// A position of the search, with what the evaluation wants to know of it.
struct Node {
    Node(const Position& start, const Distances& distances)
        : position(start), armies(start, distances) {}

    Position position;
    Armies armies;
    std::uint8_t winner = 0;  ///< the side that has won; 0: none yet

    std::uint8_t Side() const { return position.bytTurn; }
};

/// The node after a turn that was listed for this one, with these dice. Gives the attack that was
/// carried out, if any.
std::optional<Attacked> Play(Node& node, const Turn& turn, Dice dice, const Distances& distances);

}  // namespace qarn
