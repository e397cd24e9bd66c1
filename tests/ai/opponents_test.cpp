#include <gtest/gtest.h>

#include <algorithm>

#include "ai/choosers.h"
#include "ai/hint.h"
#include "ai/match_game.h"
#include "ai/opponents/levels.h"
#include "ai/opponents/turns.h"
#include "ai/starting_position.h"
#include "rules/play_turn.h"
#include "scenarios/catalogue.h"
#include "support/played_game.h"

namespace qarn {
namespace {

std::vector<Plan> TurnsIn(const std::string& position) {
    const PlayedGame played(position);
    std::vector<Plan> turns;
    ListTurns(PositionOf(played.game.record), turns);
    return turns;
}

std::string PlaceText(Square square) {
    return std::to_string(square.X) + "," + std::to_string(square.Y);
}

// The turns of one kind that do not only walk over open ground, in words.
std::string Fights(const std::string& position) {
    const PlayedGame played(position);
    std::string text;
    for (const Plan& plan : TurnsIn(position)) {
        Position after = PositionOf(played.game.record);
        const TurnOutcome outcome = PlayTurn(after, plan, {});
        if (!outcome.attack) continue;
        text += (text.empty() ? "" : "; ") + PlaceText(outcome.attack->from) +
                (outcome.attack->direct ? ">" : "!") + PlaceText(outcome.attack->to);
    }
    return text;
}

// Row 10 is plain from column 9 on. Mobility: Q 3, V 4.
TEST(Turns, AreEveryWayOfSomeOfAStackAndEndDifferently) {
    const auto turns = TurnsIn("Q@18,10 V@18,10 BT@18,10 Z@1,1");
    EXPECT_EQ(turns.back().kind, PlanKind::Pass);
    std::vector<std::pair<PeopleSet, Square>> ends;
    for (const Plan& plan : turns) {
        if (plan.kind != PlanKind::March) continue;
        ends.emplace_back(plan.people, plan.path.back());
        EXPECT_EQ(DistanceBetween(plan.start, plan.path[0]), 1);
    }
    EXPECT_EQ(std::count_if(ends.begin(), ends.end(),
                            [](const auto& end) {
                                return end.second == Square{15, 10};
                            }),
              6);  // Q, V or both, with the boat or without
    for (const auto& end : ends) EXPECT_EQ(std::count(ends.begin(), ends.end(), end), 1);
}

TEST(Turns, FightFairly) {
    EXPECT_EQ(Fights("Q@12,10 Z@13,10 WA@1,1"), "12,10>13,10; 12,10!13,10");
    EXPECT_EQ(Fights("Q@12,10 Z@14,10 WA@1,1"), "13,10>14,10");
    EXPECT_EQ(Fights("Q@12,10 HF@13,10 WA@1,1"), "");           // never its own side
    EXPECT_EQ(Fights("Q@12,10 Z@12,10 WA@13,10"), "");          // not out of a shared square
    EXPECT_EQ(Fights("Q@12,10 Z@1,1 13,10=7"), "12,10!13,10");  // burns it down
    EXPECT_EQ(Fights("Q@12,10 BT@13,10 Z@1,1"), "");
}

// ---- Choices ----

std::optional<Plan> ChoiceOf(std::string_view opponent, const std::string& position,
                             std::uint64_t seed) {
    const PlayedGame played(position);
    Thinking thinking;
    return FindOpponent(opponent)->choose(PositionOf(played.game.record), seed, thinking);
}

TEST(Levels, ChooseTheSameForTheSameSeed) {
    for (const char* name : {"scout", "captain", "warlord"}) {
        const std::string position = "WS@12,10 TS@12,10 Q@9,10 Z@15,10 WA1@15,10 WA@18,9";
        EXPECT_EQ(ChoiceOf(name, position, 7), ChoiceOf(name, position, 7)) << name;
    }
}

TEST(Levels, PlanOnlyWhatTheRulesAllow) {
    for (int scenario = 1; scenario <= scenarioCount; ++scenario) {
        const MatchGame game =
            PlayMatchGame(StartOf(scenario), {nullptr, ChooseScoutTurn, ChooseCaptainTurn}, 3, 8);
        EXPECT_EQ(game.players[1].refused + game.players[2].refused, 0) << scenario;
        EXPECT_EQ(game.turns, 8);
    }
}

// Treetop Squirrels and Slaves, 16 attack units, beat the Corsair, 3 defense units, for certain,
// and with him the last of his side.
TEST(Levels, TakeAWinThatIsThere) {
    for (const char* name : {"captain", "warlord"}) {
        const std::optional<Plan> plan = ChoiceOf(name, "WS@12,10 TS@12,10 Q@9,10 Z@15,10", 1);
        const PlayedGame played("WS@12,10 TS@12,10 Q@9,10 Z@15,10");
        Position after = PositionOf(played.game.record);
        EXPECT_EQ(PlayTurn(after, *plan, {}).winner, 1) << name;
    }
}

// ---- Hints ----

std::string HintIn(const std::string& position, Plan plan) {
    const PlayedGame played(position);
    if (plan.kind == PlanKind::March && plan.people.Empty()) {
        plan.people = PeopleOn(PositionOf(played.game.record), plan.start);
    }
    return HintOf(played.game.record, plan).sentence;
}

TEST(Hint, TellsAPlanInASentence) {
    const Plan march{.kind = PlanKind::March, .start = {9, 10}, .path = {{10, 10}, {11, 10}}};
    const Plan attack{.kind = PlanKind::Attack, .start = {14, 4}, .target = {15, 4}};
    const Plan direct{.kind = PlanKind::March, .start = {14, 4}, .path = {{15, 4}}};
    const std::string friends = "WS@9,10 TS@9,10 BT@9,10 BT@9,10 Z@1,1";
    const std::string gallowrock = "WS@14,4 LS@14,4 WA@15,4 Z@1,1";
    EXPECT_EQ(HintIn(friends, march), "Hint: TS, WS, BT (2) from (9, 10) to (11, 10).");
    EXPECT_EQ(HintIn(friends + " Q@11,10 BT@11,10", march),
              "Hint: TS, WS, BT (2) from (9, 10) to (11, 10), joining Q.");
    EXPECT_EQ(HintIn("LS@9,10 SK@9,10 ZA1@11,10 Z@1,1", march),
              "Hint: LS, SK from (9, 10) to (11, 10), attack: wins 2 of 5, ties 1 of 5.");
    EXPECT_EQ(HintIn("LS@9,10 SK@9,10 ZA1@10,10 Z@1,1", march),
              "Hint: LS, SK from (9, 10) to (10, 10), attack: wins 2 of 5, ties 1 of 5.");
    EXPECT_EQ(HintIn("15,4=0 " + gallowrock, attack),
              "Hint: Attack command, (14, 4) against (15, 4): wins 5 of 5.");
    EXPECT_EQ(HintIn(gallowrock, attack),
              "Hint: Attack command, (14, 4) against (15, 4): burns it down.");
    EXPECT_EQ(HintIn(gallowrock, direct),
              "Hint: LS, WS from (14, 4) to (15, 4), attack: burns it down.");
    EXPECT_EQ(HintIn(gallowrock, {}), "Hint: pass, there is nothing better.");
    EXPECT_EQ(HintIn(gallowrock, march), HintIn(gallowrock, {}));  // which the rules refuse
}

}  // namespace
}  // namespace qarn
