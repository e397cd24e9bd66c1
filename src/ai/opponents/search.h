#pragma once

#include <cstdint>
#include <limits>
#include <vector>

#include "ai/chooser.h"
#include "ai/opponents/evaluation.h"
#include "ai/opponents/node.h"
#include "ai/opponents/selection.h"

namespace qarn {

/// How far and how wide a search looks.
struct SearchLimits {
    static constexpr std::size_t all = std::numeric_limits<std::size_t>::max();  ///< no limit

    int plies = 2;                   ///< turns of both sides, the first included; at least 2
    std::size_t turns = 1;           ///< so many, the best one ply ahead, are looked at; at least 1
    std::size_t replies = 1;         ///< so many at the plies between; at least 1
    std::size_t turnsAlike = all;    ///< of the turns, so many marches of the same people
    std::size_t repliesAlike = all;  ///< the same of the replies
    float passes = 0;                ///< how likely the opponent is held to pass, 0 to below 1
    bool pressesAlways = true;       ///< else only while its side is the stronger one
    bool waryWhenStronger = false;   ///< then its mean with a search of one ply less counts
    std::uint64_t positions = 0;     ///< when so many have been evaluated, the search ends
};

/// Looks for the best turn by expectation: the dice are chance nodes with their exact odds, and the
/// attackers' casualty is the one that serves them best. The result depends on the position, the
/// weights and the limits alone, unless it is told to decide now. (Expectiminimax with the bounds
/// of Ballard's Star1, "The *-minimax search procedure for trees containing chance nodes", 1983;
/// the turns ordered and cut off by their value one ply ahead. The opponent takes its best answer
/// or, at times, passes: Donkers and others, "Probabilistic opponent-model search", 2001.)
class Search {
public:
    /// Counts the positions in `thinking`.
    Search(const Position& position, const Weights& weights, Thinking& thinking);

    /// All turns of the side to move, the best first, each by its value one ply ahead.
    std::vector<RatedTurn> RateTurns() { return RateTurns(root_); }

    /// The best turn that is found within the limits; of those that are as good, where the side
    /// presses, the one that brings on the best strike.
    Turn Best(const SearchLimits& limits);

private:
    /// The values between which a search is exact; at or beyond them it gives a bound.
    struct Window {
        float low = 0;
        float high = 1;
    };

    std::vector<RatedTurn> RateTurns(const Node& node);
    float StaticValue(const Node& node);
    float Value(const Node& node, int plies, Window window);
    float LikelyTurn(const Node& node, int plies, Window window);
    float BestTurn(const Node& node, int plies, Window window);
    float BestReply(const Node& node, Window window);
    bool IsOver() const;
    bool IsStronger() const;
    float Pressing(const Turn& turn) const;
    float RootValue(Turn& turn, float atLeast);
    std::uint8_t ChooseCasualty(const Node& node, Turn turn, Dice dice);
    template <typename ValueOf>
    float WorthTo(std::uint8_t side, const Node& node, Window window, const ValueOf& valueOf);
    template <typename ValueOf>
    float Expect(const Node& node, Turn& turn, Window window, const ValueOf& valueOf);

    const Distances& distances_;
    const Weights& weights_;
    Thinking& thinking_;
    Node root_;
    SearchLimits limits_;
    std::vector<Turn> replies_;  // of the last ply, kept for its memory
    Turn refutation_;            // the reply that was best before is likely to be so again
};

}  // namespace qarn
