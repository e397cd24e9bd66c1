#pragma once

#include <cstdint>
#include <vector>

#include "ai/chooser.h"
#include "ai/opponents/evaluation.h"
#include "core/plan.h"
#include "core/position.h"

namespace qarn {

/// A turn and what it is expected to be worth to the side that takes it, 0 to 1.
struct RatedTurn {
    Plan plan;
    float value = 0;
};

/// How far and how wide a search looks.
struct SearchWidth {
    std::size_t replies = 0;  ///< the best so many turns are looked at with the opponent's answers
    std::size_t followUps = 0;  ///< ... and the best so many of these with one's own next turn
};

/// Looks for the best turn by expectation: the dice are chance nodes with their exact odds, and the
/// attackers' casualty is the one that serves them best. The result depends on the position, the
/// weights and the width alone. (Expectiminimax, as in the backgammon programs, with the turns
/// ordered and cut off by their value one ply ahead.)
class Search {
public:
    /// Counts the positions in `thinking`.
    Search(const Position& position, const Weights& weights, Thinking& thinking);

    /// All turns of the side to move, the best first, each by its value one ply ahead.
    std::vector<RatedTurn> RateTurns(const Position& position);

    /// The best turn with the answers of the opponent looked at as far as the width tells.
    RatedTurn Best(const Position& position, const SearchWidth& width);

private:
    float Value(const Position& position);
    template <typename ValueOf>
    float Expect(const Position& position, Plan& plan, ValueOf valueOf);
    float ValueAfterReply(const Position& position, std::size_t followUps);

    const Distances& distances_;
    const Weights& weights_;
    Thinking& thinking_;
};

}  // namespace qarn
