#include "ai/match.h"

#include <gtest/gtest.h>

#include "ai/classic/classic_choice.h"
#include "ai/opponents/random.h"
#include "core/random_numbers.h"
#include "scenarios/catalogue.h"
#include "support/played_game.h"

namespace qarn {
namespace {

// ---- Players ----

std::optional<Plan> FindNothing(const Position&, std::uint64_t, Thinking&) { return std::nullopt; }

// Marches with its whole side, wherever they stand, two squares to the right of the last of them.
std::optional<Plan> Cheat(const Position& position, std::uint64_t, Thinking&) {
    Plan plan{.kind = PlanKind::March};
    for (std::uint8_t i = 1; i <= peopleCount; ++i) {
        if (position.People[i].Side != position.bytTurn) continue;
        plan.people.Add(i);
        plan.start = SquareOf(position.People[i]);
    }
    const auto [X, Y] = plan.start;
    for (std::uint8_t k = 1; k <= 2; ++k)
        plan.path.push_back({static_cast<std::uint8_t>(X + k), Y});
    return plan;
}

// Finds nothing a number of times, then attacks from column 9 or 10 of the last row the other.
int turnsToPass = 0;
std::optional<Plan> AttackLater(const Position& position, std::uint64_t, Thinking&) {
    if (turnsToPass-- > 0) return std::nullopt;
    const Square left{9, 10};
    const Square right{10, 10};
    const bool fromLeft = position.bytTurn == 1;
    return Plan{.kind = PlanKind::Attack,
                .start = fromLeft ? left : right,
                .target = fromLeft ? right : left};
}

// ---- One game ----

// The luck is that of the seed and the turn, whatever was done before: a 1 of the die wins, a 2
// ties, and more loses the only one.
TEST(MatchGame, HasTheLuckOfItsSeedWhoeverPlays) {
    Position position = PositionIn("Q@9,10 Z@10,10");
    for (const std::uint8_t i : PeopleOn(position, {9, 10}) | PeopleOn(position, {10, 10})) {
        position.People[i].Attack = 6;
        position.People[i].Defense = 2;
    }
    std::array<int, 3> winners{};
    for (std::uint64_t seed = 0; seed < 60; ++seed) {
        const int passes = static_cast<int>(seed % 4);
        UniformGenerator luck;
        luck.Seed(seed);
        const int firstSide = luck.Next() < 0.5 ? 1 : 2;
        for (int k = 0; k < 2 * passes; ++k) luck.Next();
        const int roll = 1 + static_cast<int>(5 * luck.Next());
        const int attacker = passes % 2 == 0 ? firstSide : 3 - firstSide;

        turnsToPass = passes;
        const MatchGame game =
            PlayMatchGame(position, {nullptr, AttackLater, AttackLater}, seed, passes + 1);
        EXPECT_EQ(game.winner, roll == 1 ? attacker : roll == 2 ? 0 : 3 - attacker) << seed;
        EXPECT_EQ(game.turns, passes + 1);
        ++winners[game.winner];
    }
    for (const int times : winners) EXPECT_GE(times, 5);
}

TEST(MatchGame, IsJudgedByTheStrengthsLeftWhenItIsCutOff) {
    MatchGame game;
    game.players[1].strengthLeft = 9;
    game.players[2].strengthLeft = 8;
    EXPECT_EQ(std::pair(game.Score(1), game.JudgedScore(1)), std::pair(0.5, 1.0));
    EXPECT_EQ(std::pair(game.Score(2), game.JudgedScore(2)), std::pair(0.5, 0.0));
    game.winner = 2;
    EXPECT_EQ(std::pair(game.Score(2), game.JudgedScore(2)), std::pair(1.0, 1.0));
    game = {};
    EXPECT_EQ(game.JudgedScore(1), 0.5);

    const Position position = PositionIn("Q@9,10 BT@9,10 Z@1,1");
    const MatchGame passed = PlayMatchGame(position, {nullptr, FindNothing, FindNothing}, 1, 3);
    const Group& Q = position.People[PeopleOn(position, {9, 10}).First()];
    EXPECT_EQ(passed.players[1].strengthLeft, Q.Attack + Q.Defense);
}

// It would win at once with its whole side.
TEST(MatchGame, PassesForWhoBreaksTheRules) {
    Position position = PositionIn("Q@1,1 V@9,10 Z@11,10");
    position.People[PeopleOn(position, {1, 1}).First()].Attack = 50;
    const MatchGame game = PlayMatchGame(position, {nullptr, Cheat, FindNothing}, 1, 4);
    EXPECT_EQ(game.winner, 0);
    EXPECT_EQ(game.players[1].refused, 2);
    EXPECT_EQ(game.players[2].refused, 0);
}

// ---- Matches ----

std::vector<long> NumbersOf(const MatchTally& tally) {
    return {tally.won, tally.drawn, tally.lost, tally.turns, tally.refused[0], tally.refused[1]};
}

const std::vector<int> twoScenarios{ScenarioNumber("HM"), ScenarioNumber("ER")};

MatchTally PlayAll(Chooser a, Chooser b, std::uint64_t seed) {
    const auto result = PlayMatch(
        {.choosers = {a, b}, .scenarios = twoScenarios, .pairs = 8, .seed = seed}, [](long) {});
    return result.all;
}

TEST(Match, IsTheSameForTheSameSeedAndMirroredForExchangedPlayers) {
    const MatchTally match = PlayAll(ChooseClassicMove, ChooseRandomTurn, 5);
    EXPECT_EQ(match.Games(), 32);
    EXPECT_GT(match.won, match.lost);
    EXPECT_EQ(NumbersOf(match), NumbersOf(PlayAll(ChooseClassicMove, ChooseRandomTurn, 5)));
    EXPECT_NE(match.turns, PlayAll(ChooseClassicMove, ChooseRandomTurn, 50).turns);

    const MatchTally mirrored = PlayAll(ChooseRandomTurn, ChooseClassicMove, 5);
    EXPECT_EQ(std::tuple(match.won, match.drawn, match.lost, match.turns, match.refused[0]),
              std::tuple(mirrored.lost, mirrored.drawn, mirrored.won, mirrored.turns,
                         mirrored.refused[1]));
    EXPECT_DOUBLE_EQ(match.scores.Mean().value, 1 - mirrored.scores.Mean().value);
    EXPECT_DOUBLE_EQ(match.judged.Mean().value, 1 - mirrored.judged.Mean().value);
    EXPECT_EQ(PlayAll(ChooseRandomTurn, ChooseRandomTurn, 5).judged.Mean().value, 0.5);
}

TEST(Match, CountsPlansThatTheRulesRefuse) {
    const MatchPlan plan{
        .choosers = {Cheat, FindNothing}, .scenarios = twoScenarios, .pairs = 2, .mostTurns = 10};
    const MatchTally cheated = PlayMatch(plan, [](long) {}).all;
    EXPECT_EQ(NumbersOf(cheated), (std::vector<long>{0, 8, 0, 80, 40, 0}));
    EXPECT_EQ(cheated.judged.Mean().value, 0.5);
}

TEST(Match, StopsEarlyAfterTheSameNumberOfGamesInEachScenario) {
    long played = 0;
    const MatchPlan plan{.choosers = {ChooseClassicMove, ChooseRandomTurn},
                         .scenarios = twoScenarios,
                         .pairs = 100,
                         .stopsEarly = true};
    const MatchResult result = PlayMatch(plan, [&](long pairs) { EXPECT_EQ(pairs, ++played); });
    EXPECT_LT(played, 100);
    for (const MatchTally& tally : result.scenarios) EXPECT_EQ(tally.Games(), 2 * played);
    EXPECT_EQ(VerdictAt(result.all.judged.LogLikelihoodRatio()), Verdict::Better);
}

TEST(Match, NeverSeesRandomPlayRefused) {
    MatchPlan plan{.choosers = {ChooseRandomTurn, ChooseClassicMove}, .scenarios = {}, .pairs = 2};
    for (int scenario = 1; scenario <= scenarioCount; ++scenario) {
        plan.scenarios.push_back(scenario);
    }
    EXPECT_EQ(PlayMatch(plan, [](long) {}).all.refused[0], 0);
}

// ---- Numbers ----

TEST(PairScores, GiveTheIntervalAndTheRatioWorkedOutByHand) {
    struct Row {
        std::vector<double> scores;
        double mean, low, high, ratio;
    };
    const Row rows[] = {
        {{}, 0.5, 0, 1, 0},
        {{1}, 1, 0.076047, 1, 0.106875},                                            // variance 2/9
        {{0.5, 0.5, 0.5, 0.5}, 0.5, 0.217098, 0.782902, -0.06},                     // 1/12
        {{1, 0.5, 0.75, 0.25, 1, 0.5, 0, 1}, 0.625, 0.354388, 0.895612, 0.262295},  // 0.1525
    };
    for (const Row& row : rows) {
        PairScores scores;
        PairScores first;
        for (const double score : row.scores) (score == 1 ? first : scores).Add(score);
        scores.Add(first);
        const Share mean = scores.Mean();
        EXPECT_NEAR(mean.value, row.mean, 1e-6);
        EXPECT_NEAR(mean.low, row.low, 1e-6);
        EXPECT_NEAR(mean.high, row.high, 1e-6);
        EXPECT_NEAR(scores.LogLikelihoodRatio(), row.ratio, 1e-6);
    }
    // ln 19 = 2.9444
    for (const auto& [ratio, verdict] :
         {std::pair(2.945, Verdict::Better), std::pair(2.944, Verdict::Open),
          std::pair(-2.944, Verdict::Open), std::pair(-2.945, Verdict::Equal)}) {
        EXPECT_EQ(VerdictAt(ratio), verdict) << ratio;
    }
}

TEST(ChoiceTimes, TellTheMedianTheTailAndTheWorst) {
    ChoiceTimes times;
    EXPECT_EQ(times.Quantile(1).count(), 0);
    for (int k = 0; k < 20; ++k) times.Add(ChoiceTimes::Milliseconds(1 + (7 * k) % 20), 30);
    EXPECT_NEAR(times.PositionsPerSecond(), 20 * 30 / 0.210, 0.01);
    EXPECT_EQ(times.Quantile(0.5).count(), 10);
    EXPECT_EQ(times.Quantile(0.95).count(), 19);
    EXPECT_EQ(times.Quantile(1).count(), 20);
}

}  // namespace
}  // namespace qarn
