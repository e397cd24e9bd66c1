#include <gtest/gtest.h>

#include "support/failing_calls.h"
#include "support/sequence.h"
#include "window/hint_mark.h"
#include "window/run_event.h"
#include "window/save_game.h"
#include "window/told_of_opponent.h"
#include "window/view_choices.h"

namespace qarn {
namespace {

class Window : public testing::TestWithParam<Sequence> {};

TEST_P(Window, GoesAsPlayed) { ExpectSequence(GetParam()); }

INSTANTIATE_TEST_SUITE_P(Commands, Window, testing::ValuesIn(ReadSequences("window/commands.txt")),
                         NameOf);

TEST(MenuCommands, WhatIsShownIsKeptForThePerson) {
    PlayedGame played("HM");
    EXPECT_EQ(played.game.view, ViewChoices());
    ViewChoices all;
    for (const ViewChoice& choice : AllViewChoices()) {
        all.*choice.Chosen = true;
        EXPECT_TRUE(played.Do("menu " + std::string(choice.Item)));
        played.Load("HM");
        EXPECT_EQ(played.game.view, all) << choice.Item;
    }
    EXPECT_TRUE(played.Do("menu mnuSides"));
    played.Open();
    EXPECT_FALSE(played.game.view.sides);
}

TEST(MenuCommands, HintGoesWhenTheGameGoesOn) {
    PlayedGame played("Q@9,10 WA@17,2");
    const Controls& controls = played.game.controls;
    const auto put = [&] { PutHint(played.game, {.Way = {{9, 10}, {10, 10}}}, "Hint."); };
    put();
    put();
    EXPECT_TRUE(controls.Hint.Visible && controls.lblStatus.Caption == "Hint.");
    DropHint(played.game);
    EXPECT_FALSE(controls.Hint.Visible);
    EXPECT_EQ(controls.lblStatus.Caption, "It is Red's turn.");
    put();
    played.Do("press cmdMove");
    const std::string status = controls.lblStatus.Caption;
    DropHint(played.game);
    EXPECT_EQ(controls.lblStatus.Caption, status);  // the sentence had gone before
    put();
    played.DoAll("click 9 10; press cmdDoneSel");
    EXPECT_FALSE(controls.Hint.Way.empty());
    played.Do("click 10 10");
    EXPECT_TRUE(controls.Hint.Way.empty() && !controls.Hint.Visible);
}

TEST(SaveGame, LeavesWhatAnotherProgramHasWrittenToThePerson) {
    PlayedGame played("Q@9,10 Z@1,1");
    WriteFile(played.path, "another program's");
    played.DoAll("answer no; menu mnuSave");
    EXPECT_TRUE(played.dialogs.boxes.back().ForThePerson);
    RunEvent(played.game, "Form_Unload", CloseWithoutBoxes);
    EXPECT_EQ(played.game.exitStatus, 1);
    EXPECT_EQ(ReadFile(played.path), "another program's");
}

TEST(SaveGame, TakesItsOwnFileForNobodyElses) {
    PlayedGame played("Q@9,10 Z@1,1");
    {
        const FailingCalls failing(Fault{0, true, Fault::Fails, EIO, "flush folder"});
        played.Do("menu mnuSave");
    }
    ASSERT_EQ(played.dialogs.boxes.size(), 1u) << "the flush failed";
    played.Do("menu mnuSave");
    EXPECT_EQ(played.dialogs.boxes.size(), 1u);
}

TEST(MenuCommands, ConvertFile) {
    PlayedGame played("older9");
    std::string walked;
    played.dialogs.whileShown = [&] { walked += ReadFile(played.path).substr(0, 2); };
    played.dialogs.queued = std::deque<Answer>(11, Answer::No);
    played.dialogs.queued.push_back(Answer::Yes);
    EXPECT_TRUE(played.Do("menu mnuConvertFile"));
    EXPECT_EQ(walked, "STVDAMSBSKDWTQCFWRHMERTJ");  // and round to where it began
    EXPECT_EQ(played.dialogs.boxes.back().Title, "Convert To Right Scenario");
    EXPECT_EQ(played.dialogs.boxes.back().Text, "Did this convert to the right scenario?");
    EXPECT_EQ(played.game.record.bytScenario, 9);
    EXPECT_TRUE(played.game.blnOpen && !played.game.blnEnded);
    EXPECT_FALSE(played.Do("menu mnuConvertFile"));  // the file has a code now

    // The new scenario's landmark squares carry what the old board had there: (15,7) a mountain.
    played.Load("older7 Q@9,10 WA@15,4 15,4=4");
    played.DoAll("answer yes; menu mnuConvertFile");
    EXPECT_EQ(played.game.controls.Caption, "Exile's Road Tactical Game - game.tgf (Red vs. Blue)");
    EXPECT_EQ(played.game.record.bytTerrain[15][7], Mountain);
    EXPECT_EQ(played.game.record.People[1].LocationX, 9);
    played.ExpectBoardShown();
}

TEST(Boxes, AreToldOfAnOpponent) {
    const std::pair<std::string, std::string> rows[] = {
        {"You will have to initiate a direct attack to proceed.  Do you want to attack?",
         "Scout will have to initiate a direct attack to proceed.  Does Scout want to attack? "
         "Yes."},
        {"You will lose if you try to attack this group. Continue?",
         "Scout will lose if it tries to attack this group. Continue? Yes."},
        {"You have burned down the Abbey.", "Scout has burned down the Abbey."},
        {"You will win if you roll a 2 or less, tie if you roll a 3, and lose if you roll a 4 and "
         "up. Select OK to roll",
         "Scout will win if it rolls a 2 or less, tie if it rolls a 3, and lose if it rolls a 4 "
         "and up."},
        {"You rolled a three and lost one character.",
         "Scout rolled a three and lost one character."},
    };
    for (const auto& [text, told] : rows) {
        const Buttons offered = text.ends_with('?') ? Buttons::YesNo : Buttons::OK;
        const MessageBox box{.Title = {}, .Text = text, .Offered = offered};
        EXPECT_EQ(ToldOfOpponent("Scout", box, Answer::Yes), told);
    }
}

}  // namespace
}  // namespace qarn
