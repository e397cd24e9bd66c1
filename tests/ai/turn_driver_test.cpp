#include <gtest/gtest.h>

#include <algorithm>

#include "ai/action.h"
#include "ai/turn_driver.h"
#include "core/turn_cycle.h"
#include "scenarios/catalogue.h"
#include "support/random_game.h"
#include "support/sequence.h"

namespace qarn {
namespace {

class ComputersTurns : public testing::TestWithParam<Sequence> {};

TEST_P(ComputersTurns, GoAsPlayed) { ExpectSequence(GetParam()); }

INSTANTIATE_TEST_SUITE_P(Turns, ComputersTurns, testing::ValuesIn(ReadSequences("ai/computer.txt")),
                         NameOf);

TEST(TurnDriver, CallsOffAnAttackByCommandThatThePersonRefuses) {
    PlayedGame played("computer1 LS@15,10 WA1@16,10 Z@1,1");
    StartAction(played.game, {.kind = PlanKind::Attack, .start = {15, 10}, .target = {16, 10}});
    played.DoAll("answer no; timer 2");
    EXPECT_EQ(played.dialogs.boxes.size(), 1u);
    const GameRecord& record = played.game.record;
    EXPECT_FALSE(record.blnAttackMode || record.blnAttackerChosen || record.Action.blnAIBusy);
    EXPECT_EQ(record.bytTurn, 1);
}

TEST(TurnDriver, TakesEveryPathThatAPlanCanHold) {
    PlayedGame played("computer1 Q@10,10 Z@1,1");
    Plan plan{.kind = PlanKind::March, .start = {10, 10}, .people = {1}};
    while (plan.path.size() < longestPath) {
        plan.path.push_back({static_cast<std::uint8_t>(plan.path.size() % 2 == 0 ? 11 : 10), 10});
    }
    EXPECT_THROW(plan.path.push_back({11, 10}), std::length_error);
    EXPECT_NO_THROW(StartAction(played.game, plan));
}

TEST(TurnDriver, LeavesAPersonsTurnAlone) {
    PlayedGame played("turn2 computer1 Q@10,10 J@13,10 Z@1,1");
    played.game.controls.tmrAI.Enabled = true;
    tmrAI_Timer(played.game);
    EXPECT_TRUE(played.game.controls.tmrAI.Enabled && !played.game.record.Action.blnAIBusy);
}

// The computer plays side 1, or both, and a person does anything in between.
class MeddledGame : public RandomGame {
public:
    explicit MeddledGame(unsigned seed)
        : RandomGame(1 + static_cast<int>(seed % scenarioCount), seed) {
        game.record.blnComputer = {false, true, seed % 3 == 0};
        ShowTurn(game, false);
    }

    void Act() {
        const bool looks = Below(game.record.blnDetailsMode ? 3 : 30) == 0;
        QueueAnswersAndDice();
        if (game.controls.tmrAI.Enabled && Below(2) == 0) {
            Tick(game);
        } else {
            Do(looks ? "press cmdSquareDetails" : RandomCommand());
        }
    }

    // Gives true when the turn passes, or the game ends, after no more than so many actions.
    bool GoesOnWithin(int actions) {
        const std::uint8_t turn = game.record.bytTurn;
        while (actions-- > 0 && !game.blnEnded && game.record.bytTurn == turn) Act();
        return game.blnEnded || game.record.bytTurn != turn;
    }

    int CharactersLeft() const {
        return static_cast<int>(std::count_if(
            game.record.People.begin(), game.record.People.end(),
            [](const PeopleRecord& people) { return !IsTransport(people) && OnBoard(people); }));
    }
};

TEST(TurnDriver, SurvivesWhateverThePersonDoes) {
    for (unsigned seed = 1; seed <= 100; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        MeddledGame played(seed);
        for (int action = 0; action < 80 && !played.game.blnEnded; ++action) {
            const int left = played.CharactersLeft();
            played.Act();
            ASSERT_LE(played.CharactersLeft(), left) << "The dead have risen.";
        }
        ASSERT_TRUE(played.GoesOnWithin(4000));
        for (const MessageBox& box : played.dialogs.boxes) {
            ASSERT_EQ(box.Text.find("::"), std::string::npos) << box.Text;  // an index out of range
        }
        played.ExpectBoardShown();
    }
}

}  // namespace
}  // namespace qarn
