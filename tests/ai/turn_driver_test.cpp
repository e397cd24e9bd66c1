#include <gtest/gtest.h>

#include "ai/action.h"
#include "ai/turn_driver.h"
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

}  // namespace
}  // namespace qarn
