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
    struct Row {
        std::function<void()> fail;
        std::string told;
    };
    const Row rows[] = {
        {[] { EightBit(263, "sum of the attack units"); },
         "The sum of the attack units would be 263, which lies outside 0 to 255."},
        {[] { throw PlayerError("The file can not be written."); }, "The file can not be written."},
        {[] { std::vector<int>().at(7); }, "Internal error in cmdMove_Click."},
        {[] { throw std::system_error(std::make_error_code(std::errc::io_error)); },
         "Internal error in cmdMove_Click."},
        {[] { throw 7; }, "Internal error in cmdMove_Click."},
    };
    for (const Row& row : rows) {
        PlayedGame played("Q@13,7 HF@13,7 Z@1,1");
        Game& game = played.game;
        const bool went = RunEvent(game, "cmdMove_Click", [&](Game& g) {
            cmdMove_Click(g);
            g.record.People[1].LocationX = 7;
            g.blnOpen = false;
            g.happenings.emplace_back(TurnCame{2});
            row.fail();
        });
        EXPECT_FALSE(went);
        ASSERT_EQ(played.dialogs.boxes.size(), 1u);
        EXPECT_EQ(played.dialogs.boxes[0].Text, row.told);
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

// Each row is one event and what it leaves, in the words of this test.
TEST(RunEvent, LeavesWhatHappened) {
    const auto square = [](Square at) { return std::to_string(at.X) + "," + std::to_string(at.Y); };
    const auto group = [](PeopleSet people) {
        std::string text;
        for (const std::uint8_t i : people) text += (text.empty() ? "" : "+") + std::to_string(i);
        return text;
    };
    struct Tell {
        decltype(square)& at;
        decltype(group)& who;
        std::string operator()(const Moved& m) const {
            std::string text = "side " + std::to_string(m.side) + " " + who(m.people);
            for (const Square step : m.path) text += " " + at(step);
            return text;
        }
        std::string operator()(const Attacked& a) const {
            return "attack " + at(a.from) + "-" + at(a.to) + (a.direct ? " direct " : " ") +
                   std::to_string(a.attack) + ":" + std::to_string(a.defense) + " roll " +
                   std::to_string(a.roll.value_or(0)) + " " +
                   std::to_string(static_cast<int>(a.result)) + " then " +
                   std::to_string(a.secondRoll.value_or(0));
        }
        std::string operator()(const Lost& l) const {
            return "lost " + who(l.people) + " of " + std::to_string(l.side) + " at " + at(l.at);
        }
        std::string operator()(const Burned& b) const {
            return "burned " + at(b.at) + "=" + std::to_string(b.terrain);
        }
        std::string operator()(const Returned& r) const {
            return "return " + who(r.people) + " " + at(r.at);
        }
        std::string operator()(const TurnCame& t) const { return "turn " + std::to_string(t.side); }
        std::string operator()(const Ended& e) const { return "end " + std::to_string(e.winner); }
    };
    struct Row {
        const char *position, *before, *event, *happened;
    };
    const std::string fight = "press cmdMove; click 9 10; press cmdDoneSel; answer yes; ";
    const Row rows[] = {
        {"Q@13,7 HF@13,7 BT@13,7 Z@1,1", "press cmdMove; click 13 7; untick 1; press cmdDoneSel",
         "click 13 8", "side 1 17+19 13,7 13,8"},
        {"Q@13,7 Z@1,1", "press cmdMove; click 13 7; press cmdDoneSel", "click 1 1", ""},
        {"Q@13,7 Z@1,1", "press cmdMove; click 13 7; press cmdDoneSel", "press cmdMove", "turn 2"},
        {"J@13,8 Z@1,1", "press cmdMove; click 13 8; press cmdDoneSel; click 14 8", "press cmdMove",
         "return 12 13,8"},
        {"LS@9,10 SK@9,10 ZA1@10,10 Z@1,1", "press cmdAttack; click 9 10; roll 1 5", "click 10 10",
         "attack 9,10-10,10 10:4 roll 1 0 then 5; lost 10 of 2 at 10,10; turn 2"},
        {"LS@9,10 SK@9,10 ZA1@10,10 Z@1,1", "press cmdAttack; click 9 10; roll 5; click 10 10",
         "tick 2; press cmdDoneSel", "lost 13 of 1 at 9,10; turn 2"},
        {"LS@9,10 SK@9,10 ZA1@10,10 Z@1,1", fight.c_str(), "roll 1 5; click 10 10",
         "attack 9,10-10,10 direct 10:4 roll 1 0 then 5; lost 10 of 2 at 10,10; "
         "side 1 4+13 9,10 10,10"},
        {"LS@9,10 SK@9,10 ZA1@10,10 Z@1,1 10,10=7", fight.c_str(), "click 10 10",
         "attack 9,10-10,10 direct 10:7 roll 0 0 then 0; burned 10,10=4; turn 2; "
         "side 1 4+13 9,10 10,10"},
        {"LS@9,10 SK@9,10 ZA1@10,10", fight.c_str(), "roll 1; click 10 10",
         "attack 9,10-10,10 direct 10:4 roll 1 0 then 0; lost 10 of 2 at 10,10; end 1"},
    };
    for (const Row& row : rows) {
        PlayedGame played(row.position);
        std::istringstream before(row.before), event(row.event);
        for (std::string command; std::getline(before >> std::ws, command, ';');) {
            ASSERT_TRUE(played.Do(command)) << command;
        }
        for (std::string command; std::getline(event >> std::ws, command, ';');) {
            ASSERT_TRUE(played.Do(command)) << command;
        }
        std::string happened;
        for (const Happening& one : played.game.happenings) {
            happened += (happened.empty() ? "" : "; ") + std::visit(Tell{square, group}, one);
        }
        EXPECT_EQ(happened, row.happened) << row.position << " " << row.event;
    }
}

}  // namespace
}  // namespace qarn
