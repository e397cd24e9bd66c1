#include "play/game_journal.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "core/file_store.h"
#include "play/journal_game.h"
#include "shell/kept_journal.h"

namespace qarn {
namespace {

namespace fs = std::filesystem;

const std::string position = "LS@12,10 Q@5,5 ZA1@9,10 Z@1,1";
const std::string move =
    "press cmdMove; click 12 10; press cmdDoneSel; click 11 10; click 10 10; press cmdMove; ";

std::vector<fs::path> KeptFiles(const JournalGame& played) {
    std::vector<fs::path> files;
    std::error_code none;
    for (const auto& file : fs::directory_iterator(played.folder / "data/journals", none)) {
        files.push_back(file.path());
    }
    return files;
}

TEST(GameJournal, GoesOnUnderAnotherName) {
    JournalGame played(position);
    played.DoAll(move + "menu mnuSave; saveas other.tgf; close");
    const Journal closed = played.journal.Told();
    played.path = played.folder / "other.tgf";
    played.OpenAgain();
    EXPECT_EQ(played.journal.Told(), closed);
    EXPECT_EQ(KeptFiles(played).size(), 2u);
}

TEST(GameJournal, GoesWithWhatACrashLeaves) {
    JournalGame played(position);
    played.game.ports.folders.userState = played.folder / "state";
    played.OpenAgain();
    played.DoAll(move);
    const Journal told = played.journal.Told();
    played.dialogs.queued = {Answer::No, Answer::Yes};
    played.OpenAgain();
    EXPECT_EQ(TurnsOf(played.journal.Told()), 1);
    played.OpenAgain();
    EXPECT_EQ(played.journal.Told(), told);
    played.DoAll("close");
    EXPECT_EQ(KeptFiles(played).size(), 1u);
}

TEST(GameJournal, BelongsToTheGameThatStandsAsItDid) {
    JournalGame played(position);
    played.DoAll(move + "menu mnuSave");
    EXPECT_EQ(TurnsOf(played.journal.Told()), 2);
    WriteFile(played.path, SavedGame("turn2 LS@12,10 ZA1@9,10 Z@1,1"));
    played.OpenAgain();
    EXPECT_EQ(TurnsOf(played.journal.Told()), 1);
}

TEST(GameJournal, IsForgottenWhenTheGameEnds) {
    JournalGame played("LS@11,10 ZA1@10,10");
    played.DoAll("menu mnuSave");
    EXPECT_EQ(KeptFiles(played).size(), 1u);
    played.DoAll("roll 5; press cmdAttack; click 11 10; click 10 10; tick 1; press cmdDoneSel");
    EXPECT_TRUE(played.game.blnEnded);
    EXPECT_TRUE(Has(played.Told(), "  Blue won the game.\n"));
    EXPECT_EQ(TurnsOf(played.journal.Told()), 1);  // the next one has not come
    EXPECT_TRUE(KeptFiles(played).empty());
}

TEST(GameJournal, DamagedOrUnwritableItDoesNoHarm) {
    JournalGame played(position);
    played.DoAll(move + "menu mnuSave");
    const fs::path file = KeptFiles(played).front();
    const std::string whole = ReadFile(file.string());
    for (std::size_t length = 0; length < whole.size(); ++length) {
        WriteFile(file.string(), whole.substr(0, length));
        played.OpenAgain();
        EXPECT_GE(TurnsOf(played.journal.Told()), 1) << length;
    }
    fs::remove_all(played.folder / "data");
    WriteFile(played.folder / "data", "no folder");
    played.DoAll("menu mnuSave");
    EXPECT_TRUE(played.dialogs.boxes.empty());
    played.OpenAgain();
    EXPECT_EQ(TurnsOf(played.journal.Told()), 1);
}

TEST(GameJournal, LongOnesLoseTheirOldestLinesAndOldOnesGo) {
    JournalGame played(position);
    const Ports& ports = played.game.ports;
    std::string text = "end 1\n";
    while (text.size() < 1'100'000) text += "turn 1 person\n";
    KeepJournalText(ports, played.path, {"position", text + "end 2\n"});
    const std::string kept = ReadKeptJournal(ports, played.path).text;
    EXPECT_TRUE(kept.starts_with("turn 1 person\n") && kept.ends_with("end 2\n"));

    const auto old = fs::file_time_type::clock::now() - std::chrono::hours(1);
    fs::last_write_time(KeptFiles(played).front(), old);
    for (int game = 1; game <= 100; ++game) {
        KeepJournalText(ports, played.folder / std::to_string(game), {"position", ""});
    }
    EXPECT_EQ(KeptFiles(played).size(), 100u);
    EXPECT_EQ(ReadKeptJournal(ports, played.path).text, "");
}

}  // namespace
}  // namespace qarn
