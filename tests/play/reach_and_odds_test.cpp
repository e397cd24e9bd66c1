#include <gtest/gtest.h>

#include "core/position.h"
#include "play/odds_ahead.h"
#include "play/reach_marks.h"
#include "play/stacks.h"
#include "play/step_told.h"
#include "play/strikes.h"
#include "rules/questions/reach.h"
#include "rules/questions/start.h"
#include "scenarios/catalogue.h"
#include "support/random_game.h"

namespace qarn {
namespace {

/// A game at a random position, in which what is told beforehand can be tried.
class TriedGame : public RandomGame {
public:
    explicit TriedGame(unsigned seed)
        : RandomGame(1 + static_cast<int>(seed % scenarioCount), seed) {
        Do("menu mnuReach");
        record_ = game.record;
        controls_ = game.controls;
    }

    void GoBack() {
        game.record = record_;
        game.controls = controls_;
        game.blnOpen = true;
        dialogs.queued.clear();
        random.queued.clear();
    }
    void Begin(Square square) {
        Do("press cmdMove");
        Click(square);
        Do("press cmdDoneSel");
    }
    void Click(Square square) {
        Do("click " + std::to_string(square.X) + " " + std::to_string(square.Y));
    }
    // The fight that a click leads to, if it does, whatever its boxes ask.
    const Attacked* Fight(Square square) {
        dialogs.queued = {Answer::Yes, Answer::Yes, Answer::Yes};
        random.QueueRoll(5);
        random.QueueRoll(5);
        Click(square);
        for (const Happening& happening : game.happenings) {
            if (const auto* attacked = std::get_if<Attacked>(&happening)) return attacked;
        }
        return nullptr;
    }

private:
    GameRecord record_;
    Controls controls_;
};

void ExpectTold(const std::optional<AttackOdds>& told, const Attacked* fight) {
    ASSERT_EQ(told.has_value(), fight != nullptr);
    if (fight == nullptr) return;
    EXPECT_EQ(told->attack, fight->attack);
    EXPECT_EQ(std::min(told->defense, told->attack), fight->defense);
    EXPECT_EQ(told->burns, !fight->roll);
}

// Walks to every square that is marked, and tries every neighbour that is not.
void TryMoveFrom(TriedGame& tried, Square start) {
    tried.Begin(start);
    const MovingGroup group = GroupInMove(tried.game.record).value();
    const auto reach = ReachOf(PositionOf(tried.game.record), group);
    ASSERT_EQ(ReachMarks(tried.game, {}).size(), reach.size());
    for (const ReachedSquare& to : reach) {
        SCOPED_TRACE(StepTold(tried.game.record, to.square));
        const auto odds = OddsAhead(tried.game.record, to.square);
        EXPECT_EQ(odds.has_value(), to.attack);
        for (std::size_t i = 1; i + 1 < to.path.size(); ++i) tried.Click(to.path[i]);
        if (to.attack) {
            ExpectTold(odds, tried.Fight(to.square));
        } else {
            tried.Click(to.square);
            EXPECT_EQ(tried.game.record.bytGroupX, to.square.X);
            EXPECT_EQ(tried.game.record.bytGroupY, to.square.Y);
            EXPECT_EQ(tried.game.record.bytMobilityLeft, group.mobilityLeft - to.cost);
        }
        tried.GoBack();
        tried.Begin(start);
    }
    tried.GoBack();
}

void TryAttacksFrom(TriedGame& tried, Square start) {
    for (const auto& [X, Y] : {std::pair{0, 1}, {1, 0}, {0, -1}, {-1, 0}}) {
        if (!IsOnBoard(start.X + X, start.Y + Y)) continue;
        const Square to{static_cast<std::uint8_t>(start.X + X),
                        static_cast<std::uint8_t>(start.Y + Y)};
        tried.Do("press cmdAttack");
        tried.Click(start);
        if (const auto odds = OddsAhead(tried.game.record, to)) ExpectTold(odds, tried.Fight(to));
        tried.GoBack();
    }
}

TEST(ReachAndOdds, AreWhatTheGameThenDoes) {
    for (unsigned seed = 1; seed <= 40; ++seed) {
        TriedGame tried(seed);
        const GameRecord& record = tried.game.record;
        const auto anybody = static_cast<std::size_t>(1 + tried.Below(17));
        const Square start = SquareOf(record.People.at(anybody));
        if (AskStart(PositionOf(record), start) != StartRefusal::None) continue;
        TryMoveFrom(tried, start);
        TryAttacksFrom(tried, start);
        if (testing::Test::HasFailure()) return;
    }
}

std::string Squares(const std::vector<Square>& squares) {
    std::string text;
    for (const Square square : squares) {
        text += std::to_string(square.X) + "," + std::to_string(square.Y) + " ";
    }
    return text;
}

TEST(Strikes, AreWhereTheEnemyCouldGoOrAttack) {
    const auto of = [](const char* position) {
        return Squares(StrikesOf(PositionOf(PlayedGame(position).game.record), 2));
    };
    // With the Attack command too, where no step leads: over water, but not up a mountain.
    EXPECT_EQ(of("ZA1@5,1 Q@1,1"), "2,1 3,1 4,1 4,2 4,3 5,2 6,1 ");
    EXPECT_EQ(of("ZA1@16,7 Q@1,1"), "16,8 17,7 ");
    EXPECT_EQ(of("Q@1,1"), "");
}

TEST(StepTold, SaysWhyTheNextClickIsRefused) {
    EXPECT_EQ(StepTold(PlayedGame("Q@16,10 Z@1,1").game.record, {16, 9}), "");
    const auto told = [](const char* position, Square square) {
        PlayedGame played(position);
        played.DoAll("press cmdMove; click 16 10; press cmdDoneSel");
        return StepTold(played.game.record, square);
    };
    const char* alone = "Q@16,10 Z@1,1";
    EXPECT_EQ(told(alone, {16, 10}), "");
    EXPECT_EQ(told(alone, {16, 9}), "A step here costs 1 mobility unit of 3.");
    EXPECT_EQ(told(alone, {13, 10}), "Square by square, you come here for 3 mobility units.");
    EXPECT_EQ(told(alone, {12, 10}), "You can not come here in this move.");
    EXPECT_EQ(told("Q@16,10 16,9=2 Z@1,1", {16, 9}), "You can not go on water without a boat.");
    EXPECT_EQ(told("Q@16,10 16,9=1 Z@1,1", {16, 9}),
              "You do not have enough mobility units to go there. It costs 5 mobility units, and 3 "
              "are left.");
    EXPECT_EQ(told("Q@16,10 HF@16,10 TS@16,9 LS@16,9 S@16,9 Z@1,1", {16, 9}),
              "There will be more than 4 characters in that unit.");
    EXPECT_EQ(told("turn2 16,9=8 Z@16,10 Q@1,1", {16, 9}),
              "Badbeasts do not enter an abbey that is empty.");
}

}  // namespace
}  // namespace qarn
