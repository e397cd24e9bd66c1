#include "window/run_event.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

#include "core/eight_bit.h"
#include "rules/movement.h"
#include "support/played_game.h"

namespace {

long allocations = 0;

}  // namespace

// Every piece of memory that this program takes is counted. Inlined, the pairs of these would look
// mismatched to the compiler.
[[gnu::noinline]] void* operator new(std::size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size)) return memory;
    throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace qarn {
namespace {

// What is thrown, in the middle of a change, and what the player reads of it.
TEST(RunEvent, PutsEverythingBackAndTellsFaultsFromMessages) {
    const std::string internal = "Internal error in cmdMove_Click.";
    const std::pair<void (*)(), std::string> rows[] = {
        {[] { EightBit(263, "sum of the attack units"); },
         "The sum of the attack units would be 263, which lies outside 0 to 255."},
        {[] { throw PlayerError("The file can not be written."); }, "The file can not be written."},
        {[] { std::vector<int>().at(7); }, internal},
        {[] { throw std::system_error(std::make_error_code(std::errc::io_error)); }, internal},
        {[] { throw 7; }, internal},
    };
    for (const auto& [fail, told] : rows) {
        PlayedGame played("Q@13,7 HF@13,7 Z@1,1");
        Game& game = played.game;
        const bool went = RunEvent(game, "cmdMove_Click", [&, &fail = fail](Game& g) {
            cmdMove_Click(g);
            g.record.People[1].LocationX = 7;
            g.blnOpen = false;
            g.happenings.emplace_back(TurnCame{2});
            fail();
        });
        EXPECT_FALSE(went);
        ASSERT_EQ(played.dialogs.boxes.size(), 1u);
        EXPECT_EQ(played.dialogs.boxes[0].Text, told);
        EXPECT_TRUE(game.happenings.empty() && game.blnOpen && !game.blnEnded);
        EXPECT_FALSE(game.record.blnMoveMode);
        EXPECT_EQ(game.record.People[1].LocationX, 13);
        EXPECT_EQ(game.controls.cmdMove.Caption, "&Move");
        EXPECT_TRUE(game.controls.cmdAttack.Enabled && game.controls.File.Enabled);
        EXPECT_EQ(game.controls.lblStatus.Caption, "It is Red's turn.");
    }
}

TEST(RunEvent, TakesNoMemoryForAnEventThatChangesNothing) {
    PlayedGame played("TQM");
    played.game.record.strPlayerName[1] = std::string(54, 'R');
    const auto nothing = [](Game&) {};
    RunEvent(played.game, "first", nothing);
    const long before = allocations;
    for (int event = 0; event < 100; ++event) RunEvent(played.game, "nothing", nothing);
    EXPECT_EQ(allocations, before);
}

}  // namespace
}  // namespace qarn
