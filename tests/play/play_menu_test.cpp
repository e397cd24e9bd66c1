#include <gtest/gtest.h>

#include "play/end_report.h"
#include "play/journal_game.h"

namespace qarn {
namespace {

TEST(PassTurn, DoesAsMovingNowhereDoes) {
    for (const auto& [position, square] :
         {std::pair{"Q@9,10 HF@9,10 WA@15,4", "9 10"},
          {"J@14,8 Q@9,10 WA@15,4", "9 10"},  // the bird would go back
          {"computer1 Q@9,10 WA@15,4", "9 10"},
          {"turn2 Q@9,10 WA@15,4 Z@15,4", "15 4"}}) {
        PlayedGame asked(position), moved(position);
        for (PlayedGame* played : {&asked, &moved}) played->game.controls.tmrAI.Enabled = false;
        asked.DoAll("answer no; menu mnuPassTurn");
        EXPECT_TRUE(asked.game.happenings.empty() &&
                    asked.game.controls.cmdMove.Caption == "&Move");
        asked.DoAll("answer yes; menu mnuPassTurn");
        moved.DoAll(std::string("press cmdMove; click ") + square +
                    "; press cmdDoneSel; press cmdMove");
        moved.game.record.strGamePath = asked.game.record.strGamePath;
        EXPECT_EQ(asked.game.record, moved.game.record) << position;
        EXPECT_EQ(asked.game.controls, moved.game.controls) << position;
        EXPECT_EQ(asked.game.happenings, moved.game.happenings);
    }
}

// Red loses a fight, Blue passes, and Red wins the next one.
TEST(EndReport, TellsWhoWonAndWhoWasLost) {
    JournalGame played("LS@9,10 SK@9,10 WS@11,10 TS@11,10 ZA1@10,10");
    for (const std::string& command :
         Parts("press cmdAttack; click 9 10; roll 5; click 10 10; tick 2; press cmdDoneSel; "
               "answer yes; menu mnuPassTurn; press cmdMove; click 11 10; press cmdDoneSel; "
               "answer yes; roll 1")) {
        played.DoAll(command);
        EXPECT_FALSE(IsOver(played.game)) << command;
    }
    played.DoAll("click 10 10");
    ASSERT_TRUE(IsOver(played.game)) << played.game.controls.lblStatus.Caption;
    const EndReport report = ReportOfEnd(played.game, played.journal.Told());
    EXPECT_EQ(report.outcome, "Red has won.");
    EXPECT_EQ(report.turns, "3 turns");
    EXPECT_EQ(report.luck.find("Red won 1 of 2 attacks"), 0u) << report.luck;
    for (const PeopleRecord& one : played.game.record.People) {
        if (one.Side == 0) continue;
        const bool told = report.lost.at(one.Side).find(one.Name) != std::string::npos;
        EXPECT_EQ(told, !OnBoard(one)) << one.Name;
    }
}

}  // namespace
}  // namespace qarn
