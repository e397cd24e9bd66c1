#include "play/journal.h"

#include <gtest/gtest.h>

#include "play/journal_game.h"
#include "play/journal_lines.h"
#include "support/sequence.h"

namespace qarn {
namespace {

class ToldJournal : public testing::TestWithParam<Sequence> {};

TEST_P(ToldJournal, IsWhatWasDone) {
    JournalGame played(GetParam().position);
    played.DoAll(GetParam().before);
    EXPECT_EQ(played.Told(), GetParam().transcript);
    EXPECT_EQ(ReadJournal(JournalLines(played.journal.Told())), played.journal.Told());
}

INSTANTIATE_TEST_SUITE_P(Journals, ToldJournal,
                         testing::ValuesIn(ReadSequences("play/journals.txt")), NameOf);

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
