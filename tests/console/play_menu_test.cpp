#include <gtest/gtest.h>

#include "support/console_game.h"
#include "support/saved_game.h"

namespace qarn {
namespace {

using Json = nlohmann::json;

TEST(PlayMenu, TakesBackByCommands) {
    ConsoleGame game(SavedGame("LS@9,10 SK@9,10 ZA1@10,10 Z@1,1"));
    const auto objects = game.ForProgram(
        "press cmdMove; click 9 10; untick 1; undo; press cmdDoneSel; click 9 9; undo; click 9 9; "
        "cancel; undo; cancel; press cmdAttack; cancel; press cmdAttack; click 9 10; random 0.9; "
        "click 10 10; undo; menu mnuCancelMove");
    const auto same = [&](std::size_t a, std::size_t b) {
        for (const char* key : {"record", "squares", "chkItems", "buttons", "menus", "lblStatus"}) {
            EXPECT_EQ(objects[a][key], objects[b][key]) << a << " " << b << " " << key;
        }
    };
    same(3, 1);
    EXPECT_NE(objects[5]["record"], objects[4]["record"]);
    same(6, 4);
    EXPECT_TRUE(objects[6]["happenings"].empty());
    EXPECT_EQ(objects[6]["menus"]["mnuTakeBack"]["enabled"], true);
    EXPECT_EQ(objects[9]["menus"]["mnuTakeBack"]["enabled"], false);
    same(7, 5);
    same(8, 12);
    EXPECT_EQ(objects[9]["error"], "mnuTakeBack can not be chosen now.");
    EXPECT_EQ(objects[10]["error"], "mnuCancelMove can not be chosen now.");
    EXPECT_EQ(objects[16]["lblStatus"], "Select the character which died in the attack.");
    EXPECT_FALSE(objects[17]["ok"] || objects[18]["ok"]) << "a die has been rolled";
}

TEST(PlayMenu, AsksByQueuedAnswers) {
    ConsoleGame game(SavedGame("Q@9,10 WA@15,4"));
    const auto objects =
        game.ForProgram("pass; answer yes; pass; resign; answer no yes; draw; draw; state");
    EXPECT_EQ(objects[0]["boxes"][0]["answer"], "no");
    EXPECT_EQ(objects[0]["record"]["bytTurn"], 1);
    EXPECT_EQ(objects[2]["record"]["bytTurn"], 2);
    EXPECT_EQ(objects[2]["happenings"], (Json{{{"what", "turn"}, {"side", 2}}}));
    EXPECT_FALSE(objects[3]["ended"] || objects[5]["ended"]);
    EXPECT_EQ(objects[6]["happenings"], (Json{{{"what", "end"}, {"winner", 0}}}));
    EXPECT_TRUE(objects[6]["ended"]);
}

}  // namespace
}  // namespace qarn
