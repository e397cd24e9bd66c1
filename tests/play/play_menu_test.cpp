#include <gtest/gtest.h>

#include <filesystem>

#include "play/end_report.h"
#include "play/journal_game.h"
#include "support/played_game.h"

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
        for (const std::string command : {"press cmdMove", "press cmdDoneSel", "press cmdMove"}) {
            if (command == "press cmdDoneSel") moved.Do(std::string("click ") + square);
            EXPECT_TRUE(moved.Do(command));
        }
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
    const char* weak = "Q@9,10 WA@15,4 Z@15,4 ZA1@14,3 ZA2@14,5";
    const char* strong = "WS@9,10 TS@9,10 LS@9,9 Q@8,9 WA@15,4";
    struct Row {
        std::string position;
        const char *opponent, *item;
        std::deque<Answer> answers;
        std::string last;  // box
        bool ends;
    };
    const auto victory = [](int side) {
        PlayedGame any("Q@9,10 WA@15,4");
        return std::string(any.game.record.strVictoryText.at(static_cast<std::size_t>(side)));
    };
    const Row rows[] = {
        {weak, "", "mnuResign", {Answer::Yes}, victory(2), true},
        {std::string("turn2 ") + weak, "", "mnuResign", {Answer::Yes}, victory(1), true},
        {weak, "", "mnuOfferDraw", {Answer::Yes}, "The game is a draw.", true},
        {std::string("computer2 ") + strong,
         "classic",
         "mnuOfferDraw",
         {Answer::Yes},
         "Blue declines the draw.",
         false},
        {std::string("computer2 ") + strong,
         "scout",
         "mnuOfferDraw",
         {Answer::Yes},
         "The game is a draw.",
         true},
        {std::string("computer2 ") + weak,
         "scout",
         "mnuOfferDraw",
         {Answer::Yes},
         "Blue declines the draw.",
         false},
        {std::string("computer2 ") + strong, "scout", "mnuOfferDraw", {Answer::No}, "", false}};
    for (const Row& row : rows) {
        PlayedGame played(row.position);
        if (*row.opponent != '\0') played.game.opponent[2] = row.opponent;
        played.dialogs.queued = row.answers;
        EXPECT_TRUE(played.Do(std::string("menu ") + row.item));
        EXPECT_TRUE(played.dialogs.boxes.front().DeclinedByDefault);
        EXPECT_EQ(played.dialogs.boxes.back().Text.substr(0, row.last.size()), row.last);
        EXPECT_EQ(played.game.blnEnded, row.ends) << row.position;
        EXPECT_EQ(std::filesystem::exists(played.path), !row.ends);
    }
}

// Red loses a fight, Blue passes, and Red wins the next one.
TEST(EndReport, TellsWhoWonAndWhoWasLost) {
    JournalGame played("LS@9,10 SK@9,10 WS@11,10 TS@11,10 ZA1@10,10");
    for (const char* command :
         {"press cmdAttack", "click 9 10", "roll 5", "click 10 10", "tick 2", "press cmdDoneSel",
          "answer yes", "menu mnuPassTurn", "press cmdMove", "click 11 10", "press cmdDoneSel",
          "answer yes", "roll 1"}) {
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
