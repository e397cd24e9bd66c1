#include "play/turn_history.h"

#include <gtest/gtest.h>

#include "support/played_game.h"

namespace qarn {
namespace {

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
