#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <vector>

#include "ai/choice_times.h"
#include "ai/chooser.h"
#include "ai/match_game.h"
#include "ai/pair_scores.h"

namespace qarn {

/// Who plays whom, and how much.
struct MatchPlan {
    std::array<Chooser, 2> choosers;  ///< A and B
    std::vector<int> scenarios;       ///< numbers 1 to 12, at least one
    long pairs = 1;                   ///< of games in each scenario, at least 1
    std::uint64_t seed = 1;           ///< of the first pair; each further pair has the next one
    long mostTurns = 200;             ///< of a game, at least 1
    bool stopsEarly = false;          ///< as soon as the sequential test has a verdict
};

/// What came of a number of games, as A sees it.
struct MatchTally {
    long won = 0;
    long drawn = 0;  ///< cut off
    long lost = 0;
    long turns = 0;
    PairScores scores;
    PairScores judged;                 ///< games cut off are judged by the strengths left
    PairScores firstSide;              ///< the judged score of side 1, whoever played it
    std::array<long, 2> refused{};     ///< plans of A and B that the rules refuse
    std::array<ChoiceTimes, 2> times;  ///< of A and B

    long Games() const { return won + drawn + lost; }
    void Add(const MatchTally& others);
};

/// What came of a match.
struct MatchResult {
    std::vector<MatchTally> scenarios;  ///< in the order of the plan
    MatchTally all;
};

/// Plays two games with each seed in each scenario, A on side 1 first and then on side 2, the
/// scenarios on all cores at once, so that the choosers must not share what they change. The
/// scenarios take turns, so that a match that stops early has played all of them alike; the
/// sequential test looks at the judged scores of all. Calls `progress` with the number of pairs
/// played in each scenario. The same plan gives the same result everywhere, the times aside.
/// Throws what PlayMatchGame throws.
MatchResult PlayMatch(const MatchPlan& plan, const std::function<void(long)>& progress);

}  // namespace qarn
