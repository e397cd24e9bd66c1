#include "rules/play_turn.h"

#include <gtest/gtest.h>

#include <map>

#include "ai/action.h"
#include "ai/opponents/turns.h"
#include "ai/turn_driver.h"
#include "rules/questions/attack.h"
#include "rules/questions/casualties.h"
#include "rules/questions/reach.h"
#include "rules/questions/start.h"
#include "rules/questions/turn.h"
#include "scenarios/catalogue.h"
#include "support/random_game.h"

namespace qarn {
namespace {

// Plays random turns of a scenario through the window's own buttons, as the driver replays them,
// and beside that on a position, and compares what comes of both.
class TwoGames : public RandomGame {
public:
    TwoGames(int scenario, unsigned seed, HouseRules house) : RandomGame(scenario, seed) {
        game.record.blnComputer = {false, true, true};
        game.record.house = house;
        for (const Terrain landmark : {Fortress, Fortress, Fortress, Fortress, Abbey}) {
            game.record.bytTerrain[static_cast<std::size_t>(8 + Below(4))]
                                  [static_cast<std::size_t>(4 + Below(4))] = landmark;
        }
        position_ = PositionOf(game.record);
    }

    const std::map<std::string, int>& Kinds() const { return kinds_; }

    void PlayTurnInBoth() {
        const Dice dice{1 + Below(5), 1 + Below(5)};
        const Plan plan = RandomPlan();
        const Position before = position_;
        random.queued.clear();
        random.QueueRoll(dice.roll);
        random.QueueRoll(dice.secondRoll);
        const TurnOutcome outcome = PlayTurn(position_, plan, dice);
        Replay(plan);
        Compare(outcome);
        CheckReached(before, plan, outcome);
        CheckAllowed(before, plan, dice);
        ++kinds_[KindOf(plan, outcome)];
    }

private:
    template <typename List>
    const auto& OneOf(const List& list) {
        return list[static_cast<std::size_t>(Below(static_cast<int>(list.size())))];
    }

    std::vector<Square> SquaresOf(std::uint8_t side) const {
        std::vector<Square> squares;
        for (const Group& group : position_.People) {
            const Square square{group.LocationX, group.LocationY};
            if (group.Side == side && OnBoard(group)) squares.push_back(square);
        }
        return squares;
    }

    // Some of a stack, at least one character of them.
    PeopleSet SomeOf(PeopleSet people) {
        PeopleSet some{people.First()};
        for (const std::uint8_t i : people) {
            if (Below(3) > 0) some.Add(i);
        }
        return some;
    }

    // A walk wherever it leads, without leaving the board; legal or not.
    Path RandomWalk(Square at) {
        Path walk;
        for (int steps = Below(5); steps > 0;) {
            const int X = at.X + (Below(2) == 0 ? 1 - 2 * Below(2) : 0);
            const int Y = at.Y + (X == at.X ? 1 - 2 * Below(2) : 0);
            if (!IsOnBoard(X, Y)) continue;
            at = {static_cast<std::uint8_t>(X), static_cast<std::uint8_t>(Y)};
            walk.push_back(at);
            --steps;
        }
        return walk;
    }

    static Path WithoutStart(const Path& whole) {
        Path rest;
        for (std::size_t k = 1; k < whole.size(); ++k) rest.push_back(whole[k]);
        return rest;
    }

    Plan RandomMarch(Square start) {
        Plan plan{.kind = PlanKind::March, .start = start};
        chosenFor_ = {};
        plan.people = SomeOf(ListedOn(position_, start));
        const MovingGroup group{plan.people, start, StrengthOf(position_, plan.people).Mobility};
        std::vector<ReachedSquare> attacks;
        const std::vector<ReachedSquare> reached = ReachOf(position_, group);
        std::copy_if(reached.begin(), reached.end(), std::back_inserter(attacks),
                     [](const ReachedSquare& square) { return square.attack; });
        if (!attacks.empty() && Below(2) == 0) {
            plan.path = WithoutStart(OneOf(attacks).path);
        } else if (!reached.empty() && Below(2) == 0) {
            chosenFor_ = OneOf(reached);
            plan.path = WithoutStart(chosenFor_.path);
        } else {
            plan.path = RandomWalk(start);
        }
        return plan;
    }

    Plan RandomPlan() {
        const std::vector<Square> own = SquaresOf(position_.bytTurn);
        Plan plan{.kind = PlanKind::Attack, .start = OneOf(own)};
        if (Below(3) == 0) {
            const auto walk = RandomWalk(plan.start);
            plan.target = walk.empty() ? plan.start : walk[0];
            const AttackAnswer attack = AskAttack(position_, plan.start, plan.target, false);
            if (attack.refusal != AttackRefusal::None) plan = {};
        } else if (Below(3) == 0) {
            std::vector<Turn> turns;
            ListTurns(position_, turns);
            plan = PlanOf(position_, OneOf(turns));
            EXPECT_EQ(AllowedPart(position_, plan), plan);
            chosenFor_ = {};
        } else if (AskStart(position_, plan.start) == StartRefusal::None) {
            plan = RandomMarch(plan.start);
        } else {
            plan = {};
        }
        plan.casualty = static_cast<std::uint8_t>(Below(peopleCount + 1));
        return plan;
    }

    // Ticks until the action is over and its move with it; a burning that passes the turn at once
    // leaves the move to be ended.
    void Replay(const Plan& plan) {
        dialogs.queued.assign(20, Answer::Yes);
        happenings_.clear();
        StartAction(game, plan);
        for (int tick = 0; tick < 100 && game.record.Action.blnAIBusy && !game.blnEnded; ++tick) {
            Tick(game);
            happenings_.insert(happenings_.end(), game.happenings.begin(), game.happenings.end());
        }
        dialogs.boxes.clear();
        dialogs.answers.clear();
    }

    void Compare(const TurnOutcome& outcome) {
        const GameRecord& record = game.record;
        std::optional<Attacked> attack;
        PeopleSet lost;
        std::uint8_t winner = 0;
        for (const Happening& happening : happenings_) {
            if (const auto* one = std::get_if<Attacked>(&happening)) attack = *one;
            if (const auto* one = std::get_if<Lost>(&happening)) lost = lost | one->people;
            if (const auto* one = std::get_if<Ended>(&happening)) winner = one->winner;
        }
        ASSERT_EQ(attack, outcome.attack);
        ASSERT_EQ(lost, outcome.lost);
        ASSERT_EQ(winner, outcome.winner);
        const Position now = PositionOf(record);
        for (std::size_t i = 1; i <= peopleCount; ++i) {
            ASSERT_EQ(now.People[i].LocationX, position_.People[i].LocationX) << "group " << i;
            ASSERT_EQ(now.People[i].LocationY, position_.People[i].LocationY) << "group " << i;
        }
        ASSERT_EQ(now.bytTerrain, position_.bytTerrain);
        if (winner != 0) return;
        ASSERT_EQ(now.bytTurn, position_.bytTurn);
        const bool counted = attack && attack->roll;
        ASSERT_TRUE(!counted || record.bytPeopleLeft == PeopleLeft(position_));
    }

    // Wherever a march comes without a fight is known beforehand, at no more than it paid; and a
    // square that it was chosen for is where it then stands, a bird over water aside.
    void CheckReached(const Position& before, const Plan& plan, const TurnOutcome& outcome) {
        if (plan.kind != PlanKind::March || outcome.attack) return;
        const Group& first = position_.People[plan.people.First()];
        const Square at{first.LocationX, first.LocationY};
        const int whole = StrengthOf(before, plan.people).Mobility;
        const int paid = whole - game.record.bytMobilityLeft;
        const auto reach = ReachOf(before, {plan.people, plan.start, whole});
        const auto told =
            std::find_if(reach.begin(), reach.end(),
                         [&](const ReachedSquare& square) { return square.square == at; });
        ASSERT_TRUE(at == plan.start || (told != reach.end() && told->cost <= paid));
        if (chosenFor_.square == Square{}) return;
        const bool returns = IsLoneBirdOnWater(before, plan.people, chosenFor_.square);
        ASSERT_EQ(at == chosenFor_.square, !returns);
        ASSERT_TRUE(returns || paid == chosenFor_.cost);
    }

    // What the rules leave of a plan does what the plan does, only that nothing left passes the
    // turn; and they leave all of a march to a square that can be reached.
    void CheckAllowed(Position before, const Plan& plan, Dice dice) {
        const Plan allowed = AllowedPart(before, plan);
        if (plan.kind == PlanKind::March && chosenFor_.square != Square{}) {
            const bool returns = IsLoneBirdOnWater(before, plan.people, chosenFor_.square);
            ASSERT_EQ(allowed == plan, !returns || chosenFor_.attack);
        }
        PlayTurn(before, allowed, dice);
        for (std::size_t i = 1; i <= peopleCount; ++i) {
            ASSERT_EQ(SquareOf(before.People[i]), SquareOf(position_.People[i])) << "group " << i;
        }
        ASSERT_EQ(before.bytTerrain, position_.bytTerrain);
        ASSERT_TRUE(before.bytTurn == position_.bytTurn || allowed.kind == PlanKind::Pass);
    }

    static std::string KindOf(const Plan& plan, const TurnOutcome& outcome) {
        if (!outcome.attack) return plan.kind == PlanKind::Pass ? "pass" : "march";
        const std::string how = outcome.attack->direct ? "direct " : "command ";
        if (!outcome.attack->roll) return how + "burned";
        if (outcome.attack->result == AttackResult::Tie) return how + "tie";
        if (outcome.attack->result == AttackResult::Lost) return how + "lost";
        return how + (outcome.attack->secondRoll == 3 ? "won and lost one" : "won");
    }

    Position position_;
    Happenings happenings_;
    ReachedSquare chosenFor_;  // what a march was chosen for, if anything
    std::map<std::string, int> kinds_;
};

class PlayTurnByHouseRules : public testing::TestWithParam<HouseRules> {};

TEST_P(PlayTurnByHouseRules, DoesWhatTheHandlersDo) {
    int turns = 0;
    std::map<std::string, int> kinds;
    for (unsigned seed = 1; turns < 60000; ++seed) {
        const int scenario = 1 + static_cast<int>(seed % scenarioCount);
        SCOPED_TRACE("seed " + std::to_string(seed));
        TwoGames games(scenario, seed, GetParam());
        for (int turn = 0; turn < 100 && !games.game.blnEnded; ++turn, ++turns) {
            SCOPED_TRACE("turn " + std::to_string(turn));
            games.PlayTurnInBoth();
            if (testing::Test::HasFatalFailure()) return;
        }
        for (const auto& [kind, count] : games.Kinds()) kinds[kind] += count;
    }
    for (const char* kind :
         {"pass", "march", "direct burned", "direct tie", "direct lost", "direct won",
          "direct won and lost one", "command burned", "command tie", "command lost", "command won",
          "command won and lost one"}) {
        EXPECT_GE(kinds[kind], 10) << kind;
    }
}

INSTANTIATE_TEST_SUITE_P(Rows, PlayTurnByHouseRules,
                         testing::Values(HouseRules{}, HouseRules{true, true}));

TEST(AllowedPart, LeavesOutWhatTheRulesRefuse) {
    const Position position = PositionIn("Q@9,10 BT@9,10 Z@11,10");
    const PeopleSet Q{PeopleOn(position, {9, 10}).First()};
    const auto march = [&](PeopleSet people, const Path& path) {
        const Plan plan{.kind = PlanKind::March, .start = {9, 10}, .people = people, .path = path};
        return AllowedPart(position, plan);
    };
    const Path intoTheEnemy{{10, 10}, {11, 10}};
    EXPECT_EQ(march(Q, {{10, 10}, {12, 10}, {11, 10}, {12, 10}}), march(Q, intoTheEnemy));
    EXPECT_EQ(march(Q, intoTheEnemy).path, intoTheEnemy);
    EXPECT_EQ(march(Q, {}), Plan());
    EXPECT_EQ(march({}, intoTheEnemy), Plan());
    EXPECT_EQ(march(PeopleOn(position, {9, 10}) - Q, intoTheEnemy), Plan());
    EXPECT_EQ(
        AllowedPart(position, {.kind = PlanKind::Attack, .start = {9, 10}, .target = {9, 10}}),
        Plan());
}

}  // namespace
}  // namespace qarn
