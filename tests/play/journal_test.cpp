#include "play/journal.h"

#include <gtest/gtest.h>

#include "play/journal_game.h"
#include "play/journal_lines.h"

namespace qarn {
namespace {

TEST(Journal, TellsEachTurnInPlainWords) {
    JournalGame played("LS@12,10 SK@12,10 ZA1@8,10 BT@8,10 BT@8,10 Z@1,1 8,10=6");
    played.DoAll("press cmdMove; click 12 10; press cmdDoneSel; click 11 10; press cmdMove");
    played.DoAll("press cmdMove; click 1 1; press cmdDoneSel; press cmdMove");
    played.DoAll("press cmdMove; click 11 10; press cmdDoneSel; click 10 10; click 9 10");
    played.DoAll("roll 1 3; answer yes; click 8 10; tick 1; press cmdDoneSel");
    EXPECT_EQ(played.Told(), R"(Turn 1: Red
  Little Shrews, Skyfeather went from (12, 10) to (11, 10).
Turn 2: Blue
  Nothing was done.
Turn 3: Red
  Little Shrews, Skyfeather went from (11, 10) by (10, 10) to (9, 10).
  Little Shrews, Skyfeather attacked Corsair's Army, Boat (2) on Forest (8, 10) from (9, 10) by stepping in, 10 against 6: wins 20 %, ties 20 %, loses 60 %.
  Rolled a 1 and won, then a 3, which costs a character.
  Blue lost Corsair's Army on (8, 10).
  Little Shrews, Skyfeather went from (9, 10) to (8, 10).
  Red lost Little Shrews on (8, 10).
Turn 4: Blue
Red won 1 of 1 attack, 0.8 more than expected. Chance of so many or more: 20 %.
Rolls of Red, 1 to 5: 1, 0, 1, 0, 0.
In all the die was with Red by 0.8 wins. Chance of so much luck: 20 %.
)");
    EXPECT_EQ(TurnsOf(played.journal.Told()), 4);
    EXPECT_EQ(ReadJournal(JournalLines(played.journal.Told())), played.journal.Told());
}

TEST(Journal, TellsWhatElseCanHappen) {
    const struct {
        const char *position, *done, *told;
    } rows[] = {
        {"WS@14,4 LS@14,4 WA@15,4 Z@1,1", "press cmdAttack; click 14 4; click 15 4",
         "Turn 1: Red\n  Little Shrews, Warlord's Slaves attacked Warlord on Gallowrock (15, 4) "
         "from (14, 4), 15 against 6.\n  Gallowrock (15, 4) burned down.\nTurn 2: Blue\n"},
        {"turn2 abbey ZA3@15,10 Q@1,1 16,10=8",
         "answer yes; press cmdAttack; click 15 10; click 16 10",
         "Turn 1: Blue\n  Corsair's Misc. Helpers attacked Thornmere (16, 10) from (15, 10), 6 "
         "against 4.\n  The abbey (16, 10) burned down.\nTurn 2: Red\n"},
        {"J@5,1 Z@1,10", "press cmdMove; click 5 1; press cmdDoneSel; click 6 1; press cmdMove",
         "Turn 1: Red\n  Sentinel went from (5, 1) to (6, 1).\n  Sentinel had to go back to (5, "
         "1).\n"},
        {"Q@9,10 Z@1,1", "answer yes; menu mnuResign",
         "Turn 1: Red\n  Red resigned.\n  Blue won the game.\n"},
        {"Q@9,10 Z@1,1", "menu mnuOwnGroupsOnly; menu mnuOneTurnForABurning; menu mnuOwnGroupsOnly",
         "Turn 1: Red\n  House rules: own groups only.\n  House rules: own groups only, one turn "
         "for a burning.\n  House rules: one turn for a burning.\n"},
    };
    for (const auto& [position, done, told] : rows) {
        JournalGame played(position);
        played.DoAll(done);
        EXPECT_EQ(played.Told(), told) << position;
        EXPECT_EQ(ReadJournal(JournalLines(played.journal.Told())), played.journal.Told());
    }
}

// A burning within a move passes the turn twice.
TEST(LastMove, IsTheOtherSides) {
    JournalGame played("WS@14,4 LS@14,4 WA@15,4 Z@1,1");
    const LastMove& last = played.game.record.LastMove;
    played.DoAll("press cmdMove; click 14 4; press cmdDoneSel; answer yes; click 15 4");
    EXPECT_EQ(last.shown, (TurnTrace{{{14, 4}, {15, 4}}, {15, 4}}));
    played.DoAll("press cmdMove");
    ASSERT_EQ(played.game.record.bytTurn, 1);
    EXPECT_EQ(last.shown, TurnTrace());
}

TEST(Journal, TellsTheLuckOfBoth) {
    const std::string attack = "press cmdAttack; click 9 10; click 10 10";
    JournalGame played("turn2 LS@9,10 ZA1@10,10 Z@1,1");
    played.DoAll("roll 1; " + attack);  // ties
    played.DoAll("roll 5; " + attack);  // loses
    const std::string told = played.Told();
    EXPECT_EQ(told.substr(told.find("Red won")),
              "Red won 0 of 1 attack, as many as expected.\nRolls of Red, 1 to 5: 0, 0, 0, 0, 1.\n"
              "Blue won 0 of 1 attack, as many as expected.\nRolls of Blue, 1 to 5: 1, 0, 0, 0, "
              "0.\nIn all the die was with nobody.\n");
}

// As a damaged file can tell it.
TEST(Journal, TellsAWayThatNobodyWent) {
    JournalGame played("Q@9,10 Z@1,1");
    const Journal journal = ReadJournal("turn 1 person\nmove 1 - 1,1 1,1\n");
    ASSERT_EQ(journal.entries.size(), 2u);
    EXPECT_EQ(TellJournal(journal, played.game).back(), "   went from (1, 1) to (1, 1).");
}

TEST(Journal, TellsThatNoMoveWasFoundBeforeWhatAnotherOpponentDid) {
    JournalGame played("Q@9,10 Z@1,1");
    Journal journal = ReadJournal("turn 1 scout\n");
    NoteNoMove(journal);
    NoteNoMove(journal);
    NoteSaid(journal, "scout", {.Title = "", .Text = "You have 3 units."}, Answer::OK);
    journal.entries.emplace_back(Moved{1, {1}, {{9, 10}, {10, 10}}});
    EXPECT_EQ(TellJournal(journal, played.game),
              (std::vector<std::string>{"Turn 1: Red, played by Scout", "  Classic found no move.",
                                        "  Hero went from (9, 10) to (10, 10).",
                                        "  Told meanwhile: Scout has 3 units."}));
}

TEST(Journal, ReadsNoLineThatNobodyCanHaveWritten) {
    const std::string good = "turn 1 person\n";
    for (const char* line :
         {"turn 3 person", "turn 1 nobody", "turn", "move 1 5 3,3", "move 1 25 3,3 3,4",
          "move 1 5 3,3 19,3", "move 1 5 3,3 3;4", "fight 1 3,3 3,4 0 10 256 1 0 0 1 2",
          "fight 1 3,3 3,4 0 10 6 6 0 0 1 2", "fight 1 3,3 3,4 0 10 6 1 0 9 1 2", "lost 1 0 3,3",
          "burned 3,3 9", "return 1,,2 3,3", "end 3", "end 1x", "story", "", "\xFF"}) {
        EXPECT_EQ(ReadJournal(good + line + "\n" + good).entries.size(), 2u) << line;
    }
    std::string longWalk = "move 1 5";
    for (int step = 0; step < 65; ++step) longWalk += " 3,3";
    EXPECT_TRUE(ReadJournal(longWalk).entries.empty());
}

}  // namespace
}  // namespace qarn
