#include "play/turn_history.h"

#include <gtest/gtest.h>

#include "scenarios/catalogue.h"
#include "support/random_game.h"
#include "window/opponents_turn.h"
#include "window/save_game.h"

namespace qarn {
namespace {

// A person of either side does anything, and takes back.
class TakenBackGame : public RandomGame {
public:
    using RandomGame::RandomGame;

    void DoSomething() {
        const Seen before = See();
        const std::uint8_t turn = game.record.bytTurn;
        QueueAnswersAndDice();
        if (!Do(RandomCommand())) return;
        seen_.resize(history.Events(), before);
        turns += game.record.bytTurn != turn ? 1 : 0;
    }

    void TakeSomeBack() {
        for (int times = 1 + Below(4); times > 0 && !seen_.empty(); --times) {
            const bool whole = Below(5) == 0 && Do("menu mnuCancelMove");
            ASSERT_TRUE(whole || Do("menu mnuTakeBack"));
            ASSERT_FALSE(whole && IsPersonsMoveUnderWay(game.record));
            const Seen& before = seen_.at(history.Events());
            ASSERT_EQ(See().state, before.state);
            ASSERT_TRUE(before.file.empty() || before.file == Saved());
            ASSERT_TRUE(game.happenings.empty());
            ExpectBoardShown();
            seen_.resize(history.Events());
            ++takenBack;
        }
    }

    int turns = 0;
    int takenBack = 0;

private:
    struct Seen {
        GameState state;
        std::string file;  // empty: not saved
    };

    std::string Saved() {
        SaveGame(game);
        return ReadFile(path);
    }
    Seen See() {
        return {{game.record, game.controls, game.blnOpen}, Below(200) == 0 ? Saved() : ""};
    }

    std::vector<Seen> seen_;  // before each of the events that can be taken back
};

TEST(TurnHistory, GivesTheVeryGameBeforeAnyEventOfATurn) {
    int turns = 0, takenBack = 0;
    for (unsigned seed = 1; turns < 2000; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        TakenBackGame played(1 + static_cast<int>(seed % scenarioCount), seed);
        for (int event = 0; event < 3000 && !played.game.blnEnded; ++event) {
            played.DoSomething();
            if (seed * static_cast<unsigned>(event) % 23 == 0) played.TakeSomeBack();
            if (testing::Test::HasFatalFailure()) return;
        }
        turns += played.turns;
        takenBack += played.takenBack;
    }
    EXPECT_GT(takenBack, 4000);
}

// What is done before and after, and what of it can be taken back then.
TEST(TurnHistory, EndsWithADieABoxOrTheTurn) {
    const std::string move = "press cmdMove; click 9 10; press cmdDoneSel";
    const std::string direct = move + "; answer yes; ";
    struct Row {
        std::string commands;
        std::size_t events;
        bool cancels;
    };
    const Row rows[] = {
        {"click 9 10", 0, false},
        {"press cmdSquareDetails; click 9 10; press cmdSquareDetails", 0, false},
        {"press cmdMove", 1, true},
        {move + "; click 1 1; click 1 1", 5, true},
        {move + "; press cmdSeeTerDet(1); menu mnuSummary", 3, true},
        {move + "; press cmdMove", 0, false},
        {move + "; answer no; click 10 10", 4, true},
        {direct + "roll 5; click 10 10", 0, false},
        {direct + "roll 5; click 10 10; tick 1", 0, false},
        {direct + "roll 3; click 10 10; click 9 9", 0, false},
        {"press cmdAttack; click 9 10", 2, true},
        {"press cmdAttack; click 9 10; press cmdAttack", 3, false},
        {"press cmdAttack; press cmdAttack; press cmdMove", 3, true},
        {"press cmdAttack; click 9 10; roll 3; click 10 10", 0, false},
        {"press cmdMove; click 8 5; press cmdDoneSel; click 8 4", 4, true},
        {"press cmdMove; click 8 5; press cmdDoneSel; click 8 4; press cmdMove", 0, false},
    };
    for (const Row& row : rows) {
        PlayedGame played("LS@9,10 SK@9,10 J@8,5 ZA1@10,10 Z@1,1");
        played.DoAll(row.commands);
        EXPECT_EQ(played.history.Events(), row.events) << row.commands;
        EXPECT_EQ(played.Do("menu mnuCancelMove"), row.cancels) << row.commands;
        EXPECT_EQ(played.history.Events() == 0, !played.Do("menu mnuTakeBack"));
    }
}

TEST(TurnHistory, HoldsNoEventThatFails) {
    PlayedGame played("Q@9,10 WA@15,4");
    played.history.Run(played.game, "lblX_Click", [](Game&) { throw 7; });
    EXPECT_EQ(played.history.Events(), 0u);
}

}  // namespace
}  // namespace qarn
