#include "ai/match.h"

#include <atomic>
#include <future>
#include <thread>

#include "ai/starting_position.h"

namespace qarn {
namespace {

// Counts a game in which A played `side`.
void Count(MatchTally& tally, const MatchGame& game, std::uint8_t side) {
    ++(game.winner == 0 ? tally.drawn : game.winner == side ? tally.won : tally.lost);
    tally.turns += game.turns;
    const std::array sides{side, OtherSide(side)};
    for (std::size_t k = 0; k < sides.size(); ++k) {
        const PlayerRecord& player = game.players.at(sides[k]);
        tally.refused[k] += player.refused;
        tally.times[k].Add(player.times);
    }
}

void PlayPair(const MatchPlan& plan, const Position& start, std::uint64_t seed, MatchTally& tally) {
    const auto& [A, B] = plan.choosers;
    const MatchGame first = PlayMatchGame(start, {nullptr, A, B}, seed, plan.mostTurns);
    const MatchGame second = PlayMatchGame(start, {nullptr, B, A}, seed, plan.mostTurns);
    Count(tally, first, 1);
    Count(tally, second, 2);
    tally.scores.Add((first.Score(1) + second.Score(2)) / 2);
    tally.judged.Add((first.JudgedScore(1) + second.JudgedScore(2)) / 2);
    tally.firstSide.Add((first.JudgedScore(1) + second.JudgedScore(1)) / 2);
}

// One pair in each scenario, on all cores.
void PlayRound(const MatchPlan& plan, const std::vector<Position>& starts, std::uint64_t seed,
               MatchResult& result) {
    std::atomic<std::size_t> next = 0;
    const auto play = [&] {
        for (std::size_t k = next++; k < starts.size(); k = next++) {
            PlayPair(plan, starts[k], seed, result.scenarios[k]);
        }
    };
    std::vector<std::future<void>> workers(std::max(1U, std::thread::hardware_concurrency()));
    for (std::future<void>& worker : workers) worker = std::async(std::launch::async, play);
    for (std::future<void>& worker : workers) worker.get();
}

PairScores JudgedOfAll(const MatchResult& result) {
    PairScores judged;
    for (const MatchTally& tally : result.scenarios) judged.Add(tally.judged);
    return judged;
}

bool IsDecided(const MatchResult& result) {
    return VerdictAt(JudgedOfAll(result).LogLikelihoodRatio()) != Verdict::Open;
}

}  // namespace

void MatchTally::Add(const MatchTally& others) {
    won += others.won;
    drawn += others.drawn;
    lost += others.lost;
    turns += others.turns;
    scores.Add(others.scores);
    judged.Add(others.judged);
    firstSide.Add(others.firstSide);
    for (std::size_t k = 0; k < times.size(); ++k) {
        refused[k] += others.refused[k];
        times[k].Add(others.times[k]);
    }
}

MatchResult PlayMatch(const MatchPlan& plan, const std::function<void(long)>& progress) {
    std::vector<Position> starts;
    for (const int scenario : plan.scenarios) starts.push_back(StartOf(scenario));
    MatchResult result{.scenarios = std::vector<MatchTally>(starts.size()), .all = {}};
    for (long pair = 0; pair < plan.pairs; ++pair) {
        PlayRound(plan, starts, plan.seed + static_cast<std::uint64_t>(pair), result);
        progress(pair + 1);
        if (plan.stopsEarly && IsDecided(result)) break;
    }
    for (const MatchTally& tally : result.scenarios) result.all.Add(tally);
    return result;
}

}  // namespace qarn
