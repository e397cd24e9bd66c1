#include <gtest/gtest.h>

#include "core/position.h"
#include "play/odds_ahead.h"
#include "play/reach_marks.h"
#include "play/stacks.h"
#include "play/step_told.h"
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

}  // namespace
}  // namespace qarn
