#include "ai/turn_driver.h"

#include <gtest/gtest.h>

#include "ai/action.h"
#include "core/board_display.h"
#include "support/sequence.h"
#include "window/opponents_turn.h"

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

// ---- Opponents that answer for themselves ----

// All that stand on 10,10.
std::optional<Plan> MarchToTheRight(const Choice& choice) {
    return Plan{.kind = PlanKind::March,
                .start = {10, 10},
                .people = PeopleOn(choice.position, {10, 10}),
                .path = {{11, 10}}};
}

// Where Classic's clicks are taken for looks.
TEST(OpponentsTurn, LetsAnOpponentPlayOnWhileThePersonLooks) {
    for (const bool classic : {true, false}) {
        PlayedGame played("computer1 HF@10,10 Q@10,10 J@13,10 Z@1,1");
        if (!classic) played.game.opponent[1] = "scout";
        Tick(played.game, MarchToTheRight);
        played.DoAll("press cmdSquareDetails; click 1 1");
        const std::string lookedAt = played.game.controls.lblDetailMore.Caption;
        played.Do("timer 40");
        EXPECT_EQ(CaptionOfSquare(played.game, 11, 10), classic ? "" : "Q    HF   ");
        if (classic) continue;
        const Controls& controls = played.game.controls;
        EXPECT_TRUE(played.game.record.blnDetailsMode && controls.fraQuickDetails.Visible);
        EXPECT_EQ(controls.lblDetailMore.Caption, lookedAt);
        EXPECT_FALSE(controls.cmdMove.Enabled);
        played.Do("press cmdSquareDetails");
        EXPECT_EQ(controls.lblStatus.Caption, "It is Blue's turn.");
        EXPECT_TRUE(controls.cmdMove.Enabled && controls.cmdAttack.Enabled);
    }
}

// What stands in the choice is all that the plan depends on.
TEST(OpponentsTurn, AsksForTheChoiceThatIsDue) {
    PlayedGame played("computer1 HF@10,10 Q@10,10 J@13,10 Z@1,1");
    Game& game = played.game;
    const Choice due = DueChoice(game).value();
    EXPECT_EQ(due.opponent, "classic");
    game.record.Standstill.drawn = true;
    EXPECT_EQ(DueChoice(game), std::nullopt) << "they have agreed on a draw";
    game.record.Standstill.drawn = false;
    game.opponent[1] = "scout";
    EXPECT_NE(DueChoice(game), due);
    EXPECT_TRUE(OpponentActs(game));

    played.Play("> press cmdMove; click 10 10; press cmdDoneSel; click 11 10");
    EXPECT_EQ(DueChoice(game), std::nullopt) << "a person's move comes first";
    EXPECT_FALSE(OpponentActs(game));
    game.opponent[1] = "classic";
    EXPECT_NE(DueChoice(game)->position, due.position);
    played.Do("press cmdMove");
    EXPECT_EQ(game.record.bytTurn, 2);
    EXPECT_EQ(DueChoice(game), std::nullopt);

    played.Play("> press cmdMove; click 1 1; press cmdDoneSel; press cmdMove");
    const auto fails = [](const Choice&) -> std::optional<Plan> { throw 1; };
    EXPECT_FALSE(Tick(game, fails));
    EXPECT_EQ(played.dialogs.boxes.back().Text, "Internal error in tmrAI_Timer.");
    EXPECT_FALSE(game.controls.tmrAI.Enabled || OpponentActs(game));
}

// Burning passes the turn to the person in the middle of the opponent's move.
TEST(OpponentsTurn, LetsAnOpponentEndItsMoveAfterABurning) {
    PlayedGame played("computer1 WS@10,10 TS@10,10 Z@11,10 ZA1@1,1 11,10=7");
    played.game.opponent[1] = "scout";
    Tick(played.game, MarchToTheRight);
    played.DoAll("timer 3");
    EXPECT_EQ(played.game.record.bytTerrain[11][10], Sand);
    EXPECT_EQ(played.game.record.bytTurn, 2);
    EXPECT_FALSE(OpponentActs(played.game)) << "the person may end it as well";
    played.Do("timer");
    EXPECT_EQ(played.game.record.bytTurn, 1);
    EXPECT_EQ(played.game.controls.cmdMove.Caption, "&Move");
    EXPECT_FALSE(played.game.record.Action.blnAIBusy);
}

}  // namespace
}  // namespace qarn
