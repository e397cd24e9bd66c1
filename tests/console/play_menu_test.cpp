#include <gtest/gtest.h>

#include "support/console_game.h"
#include "support/saved_game.h"

namespace qarn {
namespace {

using Json = nlohmann::json;

TEST(PlayMenu, TakesBackByCommands) {
    ConsoleGame game(SavedGame("LS@9,10 SK@9,10 ZA1@10,10 Z@1,1"));
    const auto objects = game.ForProgram(
        "state; press cmdMove; click 9 10; untick 1; undo; press cmdDoneSel; click 9 9; cancel; "
        "undo; cancel");
    const auto same = [&](std::size_t a, std::size_t b) {
        for (const char* key : {"record", "squares", "chkItems", "buttons", "menus", "lblStatus"}) {
            EXPECT_EQ(objects[a][key], objects[b][key]) << a << " " << b << " " << key;
        }
    };
    same(4, 2);
    EXPECT_NE(objects[6]["record"], objects[5]["record"]);
    same(7, 0);
    EXPECT_EQ(objects[8]["error"], "mnuTakeBack can not be chosen now.");
    EXPECT_EQ(objects[9]["error"], "mnuCancelMove can not be chosen now.");
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
