#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <functional>

#include "ai/choosers.h"
#include "ai/hint.h"
#include "ai/match_game.h"
#include "ai/opponents/campaigns.h"
#include "ai/opponents/evaluation.h"
#include "ai/opponents/features.h"
#include "ai/opponents/levels.h"
#include "ai/opponents/node.h"
#include "ai/opponents/search.h"
#include "ai/starting_position.h"
#include "core/opponents.h"
#include "core/random_numbers.h"
#include "rules/questions/odds.h"
#include "rules/questions/turn.h"
#include "scenarios/catalogue.h"
#include "support/played_game.h"

namespace qarn {
namespace {

std::vector<Plan> TurnsIn(const std::string& position) {
    const Position start = PositionIn(position);
    std::vector<Turn> turns;
    ListTurns(start, turns);
    std::vector<Plan> plans;
    for (const Turn& turn : turns) plans.push_back(PlanOf(start, turn));
    return plans;
}

std::string PlaceText(Square square) {
    return std::to_string(square.X) + "," + std::to_string(square.Y);
}

// The turns of one kind that do not only walk over open ground, in words.
std::string Fights(const std::string& position) {
    std::string text;
    for (const Plan& plan : TurnsIn(position)) {
        Position after = PositionIn(position);
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

// ---- The search's short way to play a turn ----

std::string Text(const Position& position) {
    std::string text = std::to_string(position.bytTurn);
    for (const Group& one : position.People) text += " " + PlaceText(SquareOf(one));
    for (const auto& column : position.bytTerrain) text.append(column.begin(), column.end());
    return text;
}

// Every listed turn of a game of random turns in each scenario, with every throw that matters.
TEST(Node, ComesToWhatTheRulesMakeOfTheTurnAndKeepsItsArmies) {
    constexpr std::array<Dice, 4> throws{Dice{5, 1}, Dice{2, 1}, Dice{1, 1},
                                         Dice{1, rollThatCosts}};
    UniformGenerator chance;
    long compared = 0;
    for (int scenario = 1; scenario <= scenarioCount; ++scenario) {
        Position position = StartOf(scenario);
        position.bytTurn = 1;
        for (int turn = 0; turn < 40; ++turn) {
            const Distances& distances = DistancesFor(position);
            const Node node(position, distances);
            std::vector<Turn> turns;
            ListTurns(position, turns);
            const auto any = [&] {
                return static_cast<std::size_t>(chance.Next() * static_cast<double>(turns.size()));
            };
            for (Turn one : turns) {
                if (!one.attacks && one.kind == PlanKind::March && any() > 20) continue;
                for (const Dice dice : throws) {
                    Node short_ = node;
                    Position whole = position;
                    Play(short_, one, dice, distances);
                    const TurnOutcome outcome = PlayTurn(whole, PlanOf(position, one), dice);
                    ASSERT_EQ(Text(short_.position), Text(whole)) << scenario;
                    ASSERT_EQ(short_.winner, outcome.winner);
                    const Features kept = FeaturesOf(short_.armies, 1, distances);
                    const Features fresh = FeaturesOf(Armies(whole, distances), 1, distances);
                    for (std::size_t i = 0; i < kept.size(); ++i) {
                        ASSERT_NEAR(kept[i], fresh[i], 1e-4) << scenario << " feature " << i;
                    }
                    ++compared;
                }
            }
            if (PlayTurn(position, PlanOf(position, turns[any()]), throws[any() % 4]).winner) break;
        }
    }
    EXPECT_GT(compared, 10000);
}

// ---- Choices ----

std::optional<Plan> ChoiceOf(std::string_view opponent, const std::string& position,
                             std::uint64_t seed) {
    Thinking thinking;
    return FindOpponent(opponent)->choose(PositionIn(position), seed, thinking);
}

// A processor that rounds a product and a sum together would come to other last bits. The number
// belongs to the weights: those learned anew come to another.
TEST(Evaluation, ComesToTheSameBitsOnEveryMachine) {
    std::uint32_t bits = 0;
    for (int scenario = 1; scenario <= scenarioCount; ++scenario) {
        Position start = StartOf(scenario);
        for (start.bytTurn = 1; start.bytTurn <= 2; ++start.bytTurn) {
            const float value = Evaluate(start, DistancesFor(start), learnedWeights);
            bits = std::rotl(bits, 1) ^ std::bit_cast<std::uint32_t>(value);
        }
    }
    EXPECT_EQ(bits, 0x3838BE68U);
}

TEST(Levels, ChooseTheSameForTheSameSeed) {
    const std::string position = "WS@12,10 TS@12,10 Q@9,10 Z@15,10 WA1@15,10 WA@18,9";
    for (const OpponentChoice& choice : opponentChoices) {
        ASSERT_NE(FindOpponent(choice.Name), nullptr) << choice.Name;
        EXPECT_EQ(ChoiceOf(choice.Name, position, 7), ChoiceOf(choice.Name, position, 7));
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

TEST(Levels, WarlordDecidesWhenItIsTold) {
    Position start = StartOf(1);
    start.bytTurn = 1;
    std::stop_source told;
    told.request_stop();
    Thinking whole;
    ChooseWarlordTurn(start, 1, whole);
    Thinking cut{.decideNow = told.get_token()};
    const std::optional<Plan> plan = ChooseWarlordTurn(start, 1, cut);
    EXPECT_EQ(AllowedPart(start, *plan), *plan);
    EXPECT_LT(cut.positions, whole.positions / 4);
}

// Treetop Squirrels and Slaves, 16 attack units, beat the Corsair, 3 defense units, for certain,
// and with him the last of his side.
TEST(Levels, TakeAWinThatIsThere) {
    const std::string position = "WS@12,10 TS@12,10 Q@9,10 Z@15,10";
    for (const char* name : {"captain", "warlord"}) {
        Position after = PositionIn(position);
        EXPECT_EQ(PlayTurn(after, *ChoiceOf(name, position, 1), {}).winner, 1) << name;
    }
}

TEST(Search, LeavesRoomForWhatOthersCanDo) {
    Position position = StartOf(ScenarioNumber("HM"));
    position.bytTurn = 1;
    Thinking thinking;
    const std::vector<RatedTurn> all = Search(position, learnedWeights, thinking).RateTurns();
    const auto mostOfOneKind = [](const std::vector<RatedTurn>& turns) {
        std::ptrdiff_t most = 0;
        for (const RatedTurn& one : turns) {
            most = std::max(most, std::ranges::count_if(turns, [&](const RatedTurn& other) {
                                return other.turn.kind == PlanKind::March && !other.turn.attacks &&
                                       other.turn.people == one.turn.people;
                            }));
        }
        return most;
    };
    std::vector<RatedTurn> best = all;
    KeepBest(best, 20, SearchLimits::all);
    EXPECT_GT(mostOfOneKind(best), 2);
    std::vector<RatedTurn> mixed = all;
    KeepBest(mixed, 20, 2);
    EXPECT_EQ(mostOfOneKind(mixed), 2);
    EXPECT_EQ(mixed.size(), 20u);
    EXPECT_EQ(mixed.front().turn, all.front().turn);
    EXPECT_TRUE(std::ranges::is_sorted(mixed, std::greater{}, &RatedTurn::value));

    const Turn march{.kind = PlanKind::March};
    const Turn strike{.kind = PlanKind::March, .attacks = true};
    std::vector<RatedTurn> fights{{march}, {strike}, {strike}, {march}};
    KeepBest(fights, 4, 1);
    EXPECT_EQ(fights.size(), 3u);

    SearchLimits limits{.plies = 3, .turns = 20, .replies = 20, .positions = 1'000'000};
    const auto evaluated = [&] {
        Thinking counted;
        Search(position, learnedWeights, counted).Best(limits);
        return counted.positions;
    };
    const std::uint64_t anything = evaluated();
    limits.turnsAlike = 1;
    const std::uint64_t mixedTurns = evaluated();
    limits.repliesAlike = 1;
    EXPECT_LT(mixedTurns, anything);
    EXPECT_NE(evaluated(), mixedTurns);
}

// Three turns ahead nobody answers one's last turn. Who has most to lose looks at two as well.
TEST(Search, IsWaryWhereItIsTheStrongerSide) {
    SearchLimits limits{.plies = 3, .turns = 6, .replies = 2, .positions = 100'000};
    Position position = StartOf(ScenarioNumber("WR"));
    position.bytTurn = 1;
    int wary = 0;
    for (int turn = 0; turn < 16; ++turn) {
        const auto best = [&](bool isWary) {
            limits.waryWhenStronger = isWary;
            Thinking thinking;
            return Search(position, learnedWeights, thinking).Best(limits);
        };
        const Turn bold = best(false);
        if (best(true) != bold) {
            const Armies armies(position, DistancesFor(position));
            EXPECT_GT(BalanceOf(armies, position.bytTurn), 0) << turn;
            ++wary;
        }
        PlayTurn(position, PlanOf(position, bold), {.roll = dieSides});
    }
    EXPECT_GT(wary, 0);
}

// Of turns that are as good, one who presses takes that which brings the best strike on. Captain
// does only while its side is the stronger one, Warlord always.
TEST(Search, BringsOnTheBestStrikeWhereItPresses) {
    SearchLimits limits{.plies = 2, .turns = 8, .passes = 0.5F, .positions = 100'000};
    const auto campaignAfter = [&](const Position& position, bool always) {
        limits.pressesAlways = always;
        Thinking thinking;
        const Distances& distances = DistancesFor(position);
        Node node(position, distances);
        Play(node, Search(position, learnedWeights, thinking).Best(limits), {}, distances);
        return CampaignOf(node.armies, position.bytTurn, distances);
    };
    int broughtOn = 0;
    Position position = StartOf(12);
    position.bytTurn = 1;
    for (std::uint64_t turn = 0; turn < 40; ++turn) {
        const Armies armies(position, DistancesFor(position));
        const float always = campaignAfter(position, true);
        const float whileStronger = campaignAfter(position, false);
        EXPECT_GE(always, whileStronger) << turn;
        const bool stronger = BalanceOf(armies, position.bytTurn) > 0;
        EXPECT_TRUE(always == whileStronger || !stronger) << turn;
        broughtOn += always > whileStronger ? 1 : 0;
        Thinking thinking;
        PlayTurn(position, *ChooseCaptainTurn(position, turn, thinking), {.roll = dieSides});
    }
    EXPECT_GT(broughtOn, 0);
}

// Those who stand still are hunted down, though the best have to gather first, and no strike that
// is open waits for ever.
TEST(Levels, GatherAndHuntThoseWhoStandStill) {
    const Chooser idle = [](const Position&, std::uint64_t, Thinking&) -> std::optional<Plan> {
        return {};
    };
    const Position start = StartOf(ScenarioNumber("WR"));
    EXPECT_EQ(PlayMatchGame(start, {nullptr, ChooseCaptainTurn, idle}, 1, 100).winner, 1);
    EXPECT_EQ(PlayMatchGame(start, {nullptr, idle, ChooseCaptainTurn}, 1, 100).winner, 2);
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
