#include <gtest/gtest.h>

#include <filesystem>

#include "play/end_report.h"
#include "play/journal_game.h"
#include "scenarios/setup.h"

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
        asked.dialogs.queued = {Answer::No};
        EXPECT_TRUE(asked.Do("menu mnuPassTurn"));
        EXPECT_TRUE(asked.game.happenings.empty() &&
                    asked.game.controls.cmdMove.Caption == "&Move");
        asked.dialogs.queued = {Answer::Yes};
        EXPECT_TRUE(asked.Do("menu mnuPassTurn"));
        moved.DoAll(std::string("press cmdMove; click ") + square +
                    "; press cmdDoneSel; press cmdMove");
        moved.game.record.strGamePath = asked.game.record.strGamePath;
        EXPECT_EQ(asked.game.record, moved.game.record) << position;
        EXPECT_EQ(asked.game.controls, moved.game.controls) << position;
        EXPECT_EQ(asked.game.happenings, moved.game.happenings);
    }
}

// What is done before, and whether passing, resigning and offering a draw can be chosen then.
TEST(PlayMenu, OffersWhatThePersonCanDo) {
    struct Row {
        const char *position, *command, *offered;
    };
    const Row rows[] = {{"Q@9,10 WA@15,4", "click 1 1", "yes yes yes"},
                        {"Q@9,10 WA@15,4", "press cmdMove", "no yes no"},
                        {"Q@9,10 WA@15,4", "press cmdAttack", "no yes no"},
                        {"Q@9,10 WA@15,4", "press cmdSquareDetails", "no yes no"},
                        {"computer1 Q@9,10 WA@15,4", "click 1 1", "no no no"}};
    for (const Row& row : rows) {
        PlayedGame played(row.position);
        played.Do(row.command);
        std::string offered;
        for (const char* item : {"mnuPassTurn", "mnuResign", "mnuOfferDraw"}) {
            played.dialogs.queued = {Answer::No};
            offered += played.Do(std::string("menu ") + item) ? " yes" : " no";
        }
        EXPECT_EQ(offered.substr(1), row.offered) << row.command;
        EXPECT_TRUE(played.game.happenings.empty() && !played.game.blnEnded);
    }
}

TEST(PlayMenu, EndsTheGameOnlyWhereSomebodyAgrees) {
    const std::string weak = "Q@9,10 WA@15,4 Z@15,4 ZA1@14,3 ZA2@14,5";
    const std::string strong = "WS@9,10 TS@9,10 LS@9,9 Q@8,9 WA@15,4";
    const std::string draw = "The game is a draw.", declines = "Blue declines the draw.";
    const auto& victory = DataOfScenario(7).VictoryText;
    struct Row {
        std::string position;
        const char *opponent, *commands;
        std::string_view last;  // box
        bool ends;
    };
    const Row rows[] = {
        {weak, "", "answer yes; menu mnuResign", victory[1], true},
        {"turn2 " + weak, "", "answer yes; menu mnuResign", victory[0], true},
        {weak, "", "answer yes; menu mnuOfferDraw", draw, true},
        {"computer2 " + strong, "classic", "answer yes; menu mnuOfferDraw", declines, false},
        {"computer2 " + strong, "scout", "answer yes; menu mnuOfferDraw", draw, true},
        {"computer2 " + weak, "scout", "answer yes; menu mnuOfferDraw", declines, false},
        {"computer2 " + strong, "scout", "answer no; menu mnuOfferDraw", "", false}};
    for (const Row& row : rows) {
        PlayedGame played(row.position);
        if (*row.opponent != '\0') played.game.opponent[2] = row.opponent;
        played.DoAll(row.commands);
        EXPECT_TRUE(played.dialogs.boxes.front().DeclinedByDefault);
        EXPECT_EQ(played.dialogs.boxes.back().Text.substr(0, row.last.size()), row.last);
        EXPECT_EQ(played.game.blnEnded, row.ends) << row.position;
        EXPECT_EQ(std::filesystem::exists(played.path), !row.ends);
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
