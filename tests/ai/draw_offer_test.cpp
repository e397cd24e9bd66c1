#include <gtest/gtest.h>

#include "ai/locked_position.h"
#include "ai/turn_driver.h"
#include "core/opponents.h"
#include "support/played_game.h"
#include "window/opponents_turn.h"

namespace qarn {
namespace {

Position PositionIn(const std::string& words) { return PositionOf(PlayedGame(words).game.record); }

TEST(LockedPosition, IsOneThatHasStoodStillForThirtyTurns) {
    const Position still = PositionIn("WS@9,10 Z@1,1");
    const Position shuffled = PositionIn("turn2 WS@9,10 Z@1,1");
    const Position stronger = PositionIn("WS@9,10 TS@9,10 Z@1,1");
    struct Row {
        Happening inTurn16;
        const Position* before16;
        const Position* from16;
        int lockedAt;
    };
    const Row rows[] = {{Moved{}, &still, &still, 31},    {Attacked{}, &still, &still, 31},
                        {Moved{}, &still, &shuffled, 31}, {Lost{}, &still, &still, 47},
                        {Burned{}, &still, &still, 47},   {Moved{}, &still, &stronger, 46},
                        {Moved{}, &stronger, &still, 46}};
    for (const Row& row : rows) {
        Standstill standstill;
        int turn = 0;
        while (!IsLocked(standstill) && turn < 99) {
            CountTurns(standstill, {TurnCame{}});
            NoteEvaluations(standstill, ++turn < 16 ? *row.before16 : *row.from16);
            if (turn == 16) CountTurns(standstill, {row.inTurn16});
        }
        EXPECT_EQ(turn, row.lockedAt) << &row - rows;
    }
}

// A game that has been locked for long enough when the computer's turn comes.
class LockedGame : public PlayedGame {
public:
    LockedGame(const std::string& position, std::string_view opponent1, std::string_view opponent2)
        : PlayedGame(position) {
        game.opponent = {"", opponent1, opponent2};
        game.record.Standstill.turns = turnsOfALock + 1;
    }
    void Tick() { qarn::Tick(game); }
    bool Acts() const { return game.record.Action.blnAIBusy; }
    const MessageBox& Box() const { return dialogs.boxes.back(); }
};

TEST(DrawOffer, IsThePersonsToTake) {
    const std::string offer =
        "Red offers a draw: for 30 turns neither side has come any further.\nDo you agree? The "
        "game then ends, and its file is deleted.";
    for (const char* position : {"computer1 Q@10,10 Z@1,1", "computer1 computer2 Q@10,10 Z@1,1"}) {
        LockedGame declined(position, "scout", "classic");
        declined.dialogs.queued = {Answer::No};
        declined.Tick();
        EXPECT_EQ(declined.Box().Text, offer);
        EXPECT_TRUE(declined.Box().DeclinedByDefault && declined.Acts());
        EXPECT_EQ(declined.game.record.Standstill.turns, 1);

        LockedGame accepted(position, "scout", "classic");
        accepted.dialogs.queued = {Answer::Yes};
        accepted.Tick();
        EXPECT_EQ(accepted.Box().Text, "The game is a draw.");
        EXPECT_EQ(accepted.game.happenings, Happenings{Ended{0}});
        EXPECT_TRUE(accepted.game.blnEnded && !std::filesystem::exists(accepted.path));
    }
    LockedGame classic("computer1 Q@10,10 Z@1,1", "classic", "scout");
    classic.Tick();
    EXPECT_EQ(classic.Box().Text, "No good move!");
}

TEST(DrawOffer, IsTakenBetweenComputersWhichThenRest) {
    LockedGame played("computer1 computer2 Q@10,10 Z@1,1", "scout", "captain");
    Game& game = played.game;
    const auto draw = [&] {
        game.record.Standstill.turns = turnsOfALock + 1;
        played.Tick();
        EXPECT_EQ(game.controls.lblStatus.Caption, "The game is a draw.");
        game.controls.tmrAI.Enabled = true;
        played.Tick();
        EXPECT_TRUE(!played.Acts() && !OpponentActs(game) && !game.blnEnded);
        EXPECT_TRUE(std::filesystem::exists(played.path));
        game.controls.tmrAI.Enabled = false;
    };
    draw();
    EXPECT_EQ(played.Box().Text, "The game is a draw.");
    EXPECT_EQ(played.Box().Offered, Buttons::OK);
    ChooseOpponent(game, 2, *FindOpponentChoice("captain"));
    EXPECT_FALSE(game.controls.tmrAI.Enabled);
    ChooseOpponent(game, 2, *FindOpponentChoice("scout"));
    EXPECT_TRUE(game.controls.tmrAI.Enabled);
    played.Tick();
    EXPECT_TRUE(played.Acts());

    played.Open();
    draw();  // and then the person plays on
    played.Play("> press cmdMove; click 10 10; press cmdDoneSel; press cmdMove");
    played.Tick();
    EXPECT_TRUE(played.Acts());
    EXPECT_EQ(played.dialogs.boxes.size(), 2u);
}

}  // namespace
}  // namespace qarn
