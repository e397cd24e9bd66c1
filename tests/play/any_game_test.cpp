#include <gtest/gtest.h>

#include <algorithm>

#include "core/turn_cycle.h"
#include "play/turn_history.h"
#include "scenarios/catalogue.h"
#include "support/random_game.h"
#include "window/opponents_turn.h"
#include "window/save_game.h"

namespace qarn {
namespace {

// Persons do anything in a crowd of groups. The computer plays neither side, one or both. Where
// persons take back, they do not look at squares as well, for looks are not taken back.
class AnyGame : public RandomGame {
public:
    AnyGame(unsigned seed, int ofThree)
        : RandomGame(1 + static_cast<int>(seed % scenarioCount), seed, ofThree),
          looks_(seed / scenarioCount % 2 == 0) {
        const unsigned players = seed / scenarioCount % 3;
        game.record.blnComputer = {false, players > 0, players > 1};
        ShowTurn(game, false);
    }

    void Act() {
        const Seen before = See();
        const std::uint8_t turn = game.record.bytTurn;
        const auto left = CharactersLeft();
        QueueAnswersAndDice();
        Do(AnyCommand());
        seen_.resize(history.Events(), before);
        turns += game.record.bytTurn != turn ? 1 : 0;
        ASSERT_LE(CharactersLeft(), left) << "The dead have risen.";
        ASSERT_TRUE(game.record.bytTurn == 1 || game.record.bytTurn == 2);
        ASSERT_TRUE(game.blnEnded || IsSomethingLeftToDo());
        ExpectBoardShown();
    }

    void TakeSomeBack() {
        for (int times = 1 + Below(4); times > 0 && !looks_ && !seen_.empty(); --times) {
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

    // Gives true when the turn passes, or the game ends, after no more than so many actions.
    bool GoesOnWithin(int actions) {
        const int before = turns;
        while (actions-- > 0 && !game.blnEnded && turns == before) Act();
        return game.blnEnded || turns != before;
    }

    void ExpectSavedWhole() {
        Do("close");
        PlayedGame again;
        again.Open(ReadFile(path));
        again.Do("close");
        EXPECT_EQ(ReadFile(again.path), ReadFile(path));
        EXPECT_EQ(again.game.record.bytTerrain, game.record.bytTerrain);
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

    std::string AnyCommand() {
        if (game.controls.tmrAI.Enabled && Below(2) == 0) return "timer";
        if (looks_ && Below(game.record.blnDetailsMode ? 3 : 40) == 0) {
            return "press cmdSquareDetails";
        }
        return Below(400) == 0 ? "menu mnuSave" : RandomCommand();
    }

    std::ptrdiff_t CharactersLeft() const {
        return std::ranges::count_if(game.record.People, [](const PeopleRecord& people) {
            return !IsTransport(people) && OnBoard(people);
        });
    }
    bool IsSomethingLeftToDo() const {
        const Controls& controls = game.controls;
        return controls.cmdMove.Enabled || controls.cmdAttack.Enabled || game.record.blnMoveMode ||
               game.record.blnDetailsMode ||
               (controls.cmdDoneSel.Visible && controls.cmdDoneSel.Enabled);
    }

    const bool looks_;
    std::vector<Seen> seen_;  // before each of the events that can be taken back
};

TEST(AnyGame, StaysWholeAndGoesOn) {
    int turns = 0, takenBack = 0, ended = 0, saved = 0;
    for (unsigned seed = 1; seed <= 144; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        const bool crowded = seed < 72;
        AnyGame played(seed, crowded ? 3 : 1);
        for (unsigned event = 0; event < 1000 && !played.game.blnEnded; ++event) {
            SCOPED_TRACE("event " + std::to_string(event));
            played.Act();
            if (seed * event % 23 == 0) played.TakeSomeBack();
            // Where few are left, they may all share their squares with enemies.
            ASSERT_TRUE(!crowded || event != 80 || played.GoesOnWithin(4000));
            if (testing::Test::HasFatalFailure()) return;
        }
        for (const MessageBox& box : played.dialogs.boxes) {
            ASSERT_EQ(box.Text.find("::"), std::string::npos) << box.Text;  // an index out of range
        }
        EXPECT_EQ(std::filesystem::exists(played.path), !played.game.blnEnded);
        ++(played.game.blnEnded ? ended : saved);
        if (!played.game.blnEnded) played.ExpectSavedWhole();
        turns += played.turns;
        takenBack += played.takenBack;
    }
    EXPECT_GT(ended, 0);
    EXPECT_GT(saved, 0);
    EXPECT_GT(turns, 2000);
    EXPECT_GT(takenBack, 4000);
}

}  // namespace
}  // namespace qarn
