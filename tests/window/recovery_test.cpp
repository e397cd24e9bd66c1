#include <gtest/gtest.h>

#include <chrono>

#include "shell/start_window.h"
#include "support/played_game.h"
#include "window/load_game.h"
#include "window/run_event.h"

namespace qarn {
namespace {

namespace fs = std::filesystem;

class Recovery : public testing::Test {
protected:
    Recovery() {
        played.game.ports.folders.userState = state / "qarn";
        played.Load("Q@9,10 J@1,1 Z@18,1");
        saved = ReadFile(played.path);
    }

    // One move of Red's, after which the turn passes; the program is then gone.
    void PlayATurn() {
        played.DoAll("press cmdMove; click 9 10; press cmdDoneSel; click 10 10; press cmdMove");
    }
    void Open(std::deque<Answer> answers) {
        played.dialogs.boxes.clear();
        played.dialogs.queued = std::move(answers);
        played.Open();
        EXPECT_TRUE(played.dialogs.queued.empty());
    }
    std::ptrdiff_t Kept() const {
        const fs::path folder = state / "qarn/recovery";
        return fs::exists(folder) ? std::distance(fs::directory_iterator(folder), {}) : 0;
    }
    int Column() const { return played.game.record.People[1].LocationX; }

    TempFolder state;
    PlayedGame played;
    std::string saved;
};

TEST_F(Recovery, GoesOnFromTheLastTurnOrNot) {
    EXPECT_EQ(Kept(), 0);
    PlayATurn();
    EXPECT_EQ(Kept(), 1);
    EXPECT_EQ(ReadFile(played.path), saved) << "the game's own file waits for its save";

    Open({Answer::No});
    EXPECT_EQ(Column(), 9);
    const std::string asked = played.dialogs.boxes.at(0).Text;
    EXPECT_TRUE(Has(asked, "\nLast turn: ") && Has(asked, "\nLast save: ")) << asked;
    Open({Answer::Yes});
    EXPECT_EQ(Column(), 10) << "No has kept it";
    EXPECT_EQ(played.game.record.bytTurn, 2);
    EXPECT_EQ(ReadFile(played.path), saved);
    played.ExpectBoardShown();

    Open({Answer::No});
    PlayATurn();
    EXPECT_EQ(Kept(), 2) << "what was declined, and this sitting";
    played.Do("close");
    EXPECT_EQ(Kept(), 0);
    Open({});
    EXPECT_EQ(Column(), 10);
}

TEST_F(Recovery, OffersNothingThatIsNoGainOrNoGame) {
    PlayATurn();
    played.Do("menu mnuSave");
    Open({});
    EXPECT_EQ(Column(), 10) << "it was saved as it was kept";

    ASSERT_EQ(Kept(), 1);
    const std::string kept = fs::directory_iterator(state / "qarn/recovery")->path().string();
    WriteFile(kept, "HM\r\nno game");
    Open({Answer::Yes});
    EXPECT_TRUE(Has(played.dialogs.boxes.at(1).Text, "can not be recovered"));
    EXPECT_EQ(Column(), 10);
    EXPECT_TRUE(played.game.blnOpen);

    played.Do("saveas other.tgf");
    EXPECT_EQ(Kept(), 0) << "the sitting goes on under another name";
}

TEST_F(Recovery, LosesNoGameThatWasSavedSince) {
    PlayATurn();
    played.random.QueueRoll(1);
    WriteFile(played.path, saved + "\r\n");
    const auto later = fs::last_write_time(played.path) + std::chrono::seconds(1);
    fs::last_write_time(played.path, later);
    Open({Answer::No});
    EXPECT_TRUE(played.dialogs.boxes.at(0).DeclinedByDefault);
    EXPECT_TRUE(Has(played.dialogs.boxes.at(0).Text, "It has been saved since."));

    PlayATurn();
    WriteFile(played.path, Replaced(saved, "Blue", "Cat "));
    Open({});
    EXPECT_EQ(played.game.record.strPlayerName[2], "Cat");
}

TEST_F(Recovery, IsLeftToTheProgramThatPlaysTheGame) {
    PlayATurn();
    PlayedGame other;
    other.path = played.path;
    other.game.ports.folders.userState = played.game.ports.folders.userState;
    other.Open();
    EXPECT_TRUE(other.dialogs.boxes.empty()) << "nobody came to an end";
    other.Do("press cmdMove");
    other.Do("close");
    EXPECT_EQ(Kept(), 1);
    Open({Answer::Yes});
    EXPECT_EQ(Column(), 10);
    played.Do("close");
    EXPECT_EQ(Kept(), 0);
    other.Open();
    EXPECT_TRUE(other.game.keeping) << "it was left with the game";
    played.Open();
    EXPECT_FALSE(played.game.keeping);
    other.Do("saveas other.tgf");
    played.Open();
    EXPECT_TRUE(played.game.keeping);
}

TEST_F(Recovery, StaysWithTheGameThatAFaultBringsBack) {
    const std::string another = played.folder / "another.tgf";
    WriteFile(another, saved);
    RunEvent(played.game, "Form_Load", [&](Game& game) {
        Form_Load(game, another);
        throw 7;
    });
    PlayedGame other;
    other.game.ports.folders.userState = played.game.ports.folders.userState;
    for (const std::string& path : {played.path, another}) {
        other.path = path;
        other.Open();
        EXPECT_EQ(other.game.keeping != nullptr, path == another) << path;
    }
    PlayedGame none;
    const TempFolder untouched;
    none.game.ports.folders.userState = untouched / "qarn";
    RunEvent(none.game, "Form_Load", [](Game&) { throw 7; });
    EXPECT_EQ(untouched.Entries(), 0) << "no game stands there";
}

TEST_F(Recovery, IsForgottenAtTheEndAndNoBoxWhenItCannotBeKept) {
    WriteFile(state / "qarn/recovery", "in the way");
    PlayATurn();
    EXPECT_TRUE(played.dialogs.boxes.empty());
    fs::remove(state / "qarn/recovery");
    played.Load("Q@9,10 J@1,1 Z@18,1");
    PlayATurn();
    EXPECT_EQ(Kept(), 1);
    played.dialogs.queued = {Answer::Yes};
    played.Do("menu mnuResign");
    EXPECT_TRUE(played.game.blnEnded);
    EXPECT_EQ(Kept(), 0);
}

TEST_F(Recovery, IsMarkedInTheStartWindowUntilTheGameIsDeleted) {
    PlayATurn();
    WriteFile(played.folder / "other.tgf", saved);
    FakeWastebasket wastebasket;
    StartWindow window{.ports = played.game.ports, .wastebasket = wastebasket};
    FileList& list = window.controls.fileLoad;
    list.Path = played.folder.Path();
    const auto later = fs::last_write_time(played.path) + std::chrono::seconds(1);
    fs::last_write_time(played.folder / "other.tgf", later);
    RefreshFileList(window);
    ASSERT_EQ(list.List, (std::vector<std::string>{"other.tgf", "game.tgf"}));
    EXPECT_TRUE(list.Told[1].ends_with(" Can be recovered.")) << list.Told[1];
    EXPECT_FALSE(list.Told[0].ends_with("recovered.")) << list.Told[0];
    list.ListIndex = 1;
    fileLoad_Click(window);
    played.dialogs.queued = {Answer::Yes};
    cmdDelete_Click(window);
    EXPECT_EQ(Kept(), 0);
}

}  // namespace
}  // namespace qarn
