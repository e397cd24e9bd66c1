#include <gtest/gtest.h>

#include <algorithm>

#include "ai/action.h"
#include "core/turn_cycle.h"
#include "scenarios/catalogue.h"
#include "support/computer_game.h"
#include "support/random_game.h"
#include "window/load_game.h"

namespace qarn {
namespace {

TEST(TurnDriver, PlaysOneStageATick) {
    ComputerGame played("HF@10,10 Q@10,10 BT@10,10 J@13,10 Z@1,1");
    EXPECT_EQ(played.TickOn(),
              "You are currently in move mode.\n"
              "6595,8755 Choose the item(s) you would like to move.\n"
              "6595,8755 You have 6 mobility units.\n"
              "7315,8755 You have 5 mobility units left.\n"
              "8035,8755 You have 4 mobility units left.\n"
              "8755,8755 You stepped into a square with characters from your side.\n"
              "It is Blue's turn.\n");
    EXPECT_EQ(played.Square(13, 10), "Q    J    HF   BT   ");
    EXPECT_FALSE(played.game.controls.tmrAI.Enabled || played.game.record.Action.blnAIBusy);
}

// Of Q 5+5, J 3+5 and V 4+4 the J is the first of the weakest. The boat beside the target, and the
// target itself, are no part of the list.
TEST(TurnDriver, ChoosesTheCasualtyAmongThoseWhoseBoxesAreShowing) {
    struct Row {
        std::vector<int> rolls;
        std::string attackersSquare;
        std::string targetSquare;
    };
    const Row rows[] = {{{5}, "Q    V    BT   ", "Z    BT   "},
                        {{1, 3}, "", "Q    V    BT   BT   "}};
    for (const Row& row : rows) {
        ComputerGame played("Q@10,10 J@10,10 V@10,10 BT@10,10 Z@12,10 BT@12,10 ZA1@1,1");
        for (const int roll : row.rolls) played.random.QueueRoll(roll);
        played.dialogs.queued = {Answer::Yes};
        const std::string ticks = played.TickOn();
        EXPECT_EQ(std::count(ticks.begin(), ticks.end(), '\n'), 1 + 2 + 5) << ticks;
        EXPECT_EQ(played.Square(11, 10), row.attackersSquare);
        EXPECT_EQ(played.Square(12, 10), row.targetSquare);
        EXPECT_EQ(played.game.record.bytTurn, 2);
    }
}

TEST(TurnDriver, EndsTheMoveWhenThePersonCallsTheAttackOff) {
    ComputerGame played("WS@10,10 TS@10,10 Z@12,10");
    played.dialogs.queued = {Answer::No};
    played.TickOn();
    EXPECT_EQ(played.Square(11, 10), "TS   WS   ");
    EXPECT_EQ(played.game.controls.lblStatus.Caption, "It is Blue's turn.");
}

TEST(TurnDriver, CallsOffAnAttackByCommandThatThePersonRefuses) {
    ComputerGame played("LS@15,10 WA1@16,10 Z@1,1");
    StartAction(played.game, {.kind = PlanKind::Attack, .start = {15, 10}, .target = {16, 10}});
    played.dialogs.queued = {Answer::No};
    for (int stage = 0; stage < 2; ++stage) played.Tick();
    EXPECT_EQ(played.dialogs.boxes.size(), 1u);
    const GameRecord& record = played.game.record;
    EXPECT_FALSE(record.blnAttackMode || record.blnAttackerChosen || record.Action.blnAIBusy);
    EXPECT_EQ(record.bytTurn, 1);
}

TEST(TurnDriver, TakesEveryPathThatAPlanCanHold) {
    ComputerGame played("Q@10,10 Z@1,1");
    Plan plan{.kind = PlanKind::March, .start = {10, 10}, .people = {1}};
    while (plan.path.size() < longestPath) {
        plan.path.push_back({static_cast<std::uint8_t>(plan.path.size() % 2 == 0 ? 11 : 10), 10});
    }
    EXPECT_THROW(plan.path.push_back({11, 10}), std::length_error);
    EXPECT_NO_THROW(StartAction(played.game, plan));
}

// Burning passes the turn, and so does the end of the move: the side that burned plays on.
TEST(TurnDriver, FinishesTheMoveThatBurnedGallowrock) {
    ComputerGame played("WS@10,10 TS@10,10 Z@12,10 12,10=7");
    played.game.record.blnComputer[2] = true;
    played.dialogs.queued = {Answer::Yes};
    played.TickOn();
    EXPECT_EQ(played.game.record.bytTurn, 2);
    EXPECT_TRUE(played.game.record.Action.blnAIBusy);
    played.Tick();
    EXPECT_EQ(played.game.record.bytTurn, 1);
    EXPECT_TRUE(played.game.controls.tmrAI.Enabled && !played.game.record.Action.blnAIBusy);
}

TEST(TurnDriver, LeavesAPersonsTurnAlone) {
    ComputerGame played("turn2 Q@10,10 J@13,10 Z@1,1");
    played.game.controls.tmrAI.Enabled = true;
    played.Tick();
    EXPECT_TRUE(played.game.controls.tmrAI.Enabled && !played.game.record.Action.blnAIBusy);
}

TEST(TurnDriver, LetsThePersonMoveWhenThereIsNoGoodMove) {
    ComputerGame played("Q@10,10 Z@1,1");
    played.Tick();
    EXPECT_EQ(played.dialogs.boxes.back().Text, "No good move!");
    EXPECT_FALSE(played.game.controls.tmrAI.Enabled || played.game.record.Action.blnAIBusy);
    played.Play("> press cmdMove; click 10 10; press cmdDoneSel; click 11 10; press cmdMove");
    EXPECT_EQ(played.game.record.bytTurn, 2);
}

TEST(TurnDriver, TellsAFailureOnceAndStops) {
    ComputerGame played("WS@10,10 TS@10,10 Z@12,10");
    played.game.record.People[3].Attack = 255;
    played.TickOn();
    ASSERT_EQ(played.dialogs.boxes.size(), 1u);
    EXPECT_NE(played.dialogs.boxes[0].Text.find("263"), std::string::npos);
    EXPECT_EQ(played.game.record.bytTurn, 1);
}

TEST(TurnDriver, ForgetsTheActionWhenAGameIsLoaded) {
    ComputerGame played("Q@10,10 J@13,10 Z@1,1");
    for (int tick = 0; tick < 4; ++tick) played.Tick();
    played.Load("Q@10,10 J@13,10 Z@1,1");
    EXPECT_FALSE(played.game.record.Action.blnAIBusy || played.game.controls.tmrAI.Enabled ||
                 played.game.controls.shpHighlight.Visible);
    played.Play("> press cmdMove; click 10 10; press cmdDoneSel; click 11 10; press cmdMove");
    EXPECT_EQ(played.Square(11, 10), "Q    ");
}

// ---- A person who meddles ----

// The attacker that the person named stands beside the square from which the computer attacks.
TEST(TurnDriver, ForgetsTheAttackerThatThePersonNamed) {
    ComputerGame played("WS@10,10 TS@10,10 Z@12,10 ZA1@1,1");
    played.Play("> press cmdAttack; click 10 10");
    played.dialogs.queued = {Answer::Yes};
    for (const int roll : {1, 1}) played.random.QueueRoll(roll);
    played.TickOn();
    EXPECT_EQ(played.Square(12, 10), "TS   WS   ");
    EXPECT_FALSE(played.game.record.blnAttackMode);
}

// What a person does after some ticks of the computer's action takes its move away. When the turn
// comes back, the computer forgets that action, and chooses afresh what can still be done.
TEST(TurnDriver, ForgetsAnActionWhoseMoveIsGone) {
    const std::string pass = "\n> press cmdMove; click 17 10; press cmdDoneSel; press cmdMove";
    struct Row {
        const char* whatEndsIt;
        int ticks;
        std::string meddling;
    };
    const Row rows[] = {
        {"Done Moving", 3, "press cmdMove" + pass},
        {"an attack by command", 2, "click 15 10; roll 1 1; click 16 10" + pass},
        {"the casualty", 6, "tick 1; press cmdDoneSel" + pass},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.whatEndsIt);
        ComputerGame played("WS@10,10 TS@10,10 S@12,10 Z@11,9 LS@15,10 V@15,10 ZA1@16,10 WA@17,10");
        if (row.ticks == 2) played.Do("press cmdAttack");
        if (row.ticks == 6) {
            played.Load("Q@10,10 J@10,10 V@10,10 Z@12,10 WA@17,10");
            played.game.record.blnComputer[1] = true;
            ShowTurn(played.game, false);
            played.dialogs.queued = {Answer::Yes};
            played.random.QueueRoll(5);
        }
        for (int tick = 0; tick < row.ticks; ++tick) played.Tick();
        EXPECT_TRUE(played.game.record.Action.blnAIBusy);
        const std::string meddling = played.Play("> " + row.meddling);
        EXPECT_EQ(meddling.find("refused"), meddling.npos) << meddling;
        EXPECT_LT(meddling.find(" items=none"), meddling.find("\n> ")) << meddling;
        EXPECT_EQ(played.game.controls.cmdMove.Caption, "&Move");
        EXPECT_EQ(played.game.record.bytTurn, 1);
        EXPECT_TRUE(played.game.controls.tmrAI.Enabled);
        played.Tick();
        const ActionRecord& action = played.game.record.Action;
        const bool chose = action.blnAIBusy && action.bytAIStep == 1;
        EXPECT_TRUE(chose ||
                    (played.dialogs.boxes.back().Text == "No good move!" && !action.blnAIBusy));
        EXPECT_FALSE(played.game.controls.shpHighlight.Visible);
    }
}

// The person burns Gallowrock by stepping in, which passes the turn while the move still waits for
// its end: the computer waits too.
TEST(TurnDriver, WaitsForAPersonsFinishedMove) {
    ComputerGame played("turn2 WA@14,4 WA1@14,4 HF@15,4 Q@10,10 J@13,10 15,4=7");
    played.Play("> press cmdMove; click 14 4; press cmdDoneSel; answer yes; click 15 4");
    EXPECT_EQ(played.game.record.bytTerrain[15][4], Sand);
    EXPECT_EQ(played.game.record.bytTurn, 1);
    for (int tick = 0; tick < 3; ++tick) played.Tick();
    EXPECT_TRUE(played.game.controls.tmrAI.Enabled);
    EXPECT_FALSE(played.game.record.Action.blnAIBusy);
    EXPECT_EQ(played.Square(15, 4), "WA   WA1  HF   ");
    played.Play("> press cmdMove");
    EXPECT_EQ(played.game.record.bytTurn, 2);
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
