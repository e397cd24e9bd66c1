#include <gtest/gtest.h>

#include <algorithm>

#include "core/board_display.h"
#include "support/played_game.h"

namespace qarn {
namespace {

std::string Padded(std::string name) {
    name.resize(54, ' ');
    return name;
}

class LoadGame : public testing::Test {
protected:
    void Open(const std::string& text) {
        played.dialogs.boxes.clear();
        played.Open(text);
    }

    PlayedGame played;
    const GameRecord& record = played.game.record;
    const Controls& controls = played.game.controls;
};

TEST_F(LoadGame, SeedsTheRandomNumbers) {
    Open(SavedGame("CF"));
    EXPECT_EQ(played.random.seeded, 1);
}

// What is saved is what was loaded, to the byte. The text is the test's own.
TEST_F(LoadGame, SavedGamesComeBack) {
    WriteFile(played.folder / ".qarn-save-0123456789abcdef", "left by a program that was killed");
    const std::string position = "turn2 J@1,1 WA@15,4 CT@18,10 BT@3,7 15,4=4";
    for (const auto& [line, text] : {std::pair{2, Padded("Red") + "False"},
                                     {2, std::string(54, 'R') + "True"},
                                     {3, Padded("\x80uro Zo\xEB") + "True"}}) {
        const std::string saved = WithLine(SavedGame(position), line, text);
        Open(saved);
        EXPECT_FALSE(std::filesystem::exists(played.folder / ".qarn-save-0123456789abcdef"));
        EXPECT_EQ(record.People[12].Name, "Sentinel");
        EXPECT_EQ(CaptionOfSquare(played.game, 1, 1), "J    ");
        EXPECT_EQ(controls.lbl[15][4].BackColor, Color{0xFFFF00});
        EXPECT_EQ(record.bytCurrentX, 15);  // the last landmark square read
        played.ExpectBoardShown();
        played.Do("menu mnuSave");
        EXPECT_EQ(ReadFile(played.path), saved);
    }
    EXPECT_EQ(record.strPlayerName[2], "€uro Zoë");

    // Other squares are read too, but not written.
    Open(SavedGame(position + " 2,2=6"));
    EXPECT_EQ(record.bytTerrain[2][2], Forest);
    played.Do("menu mnuSave");
    EXPECT_EQ(ReadFile(played.path), SavedGame(position));
}

TEST_F(LoadGame, ItemsEndAtCommas) {
    const std::string text = SavedGame("J@1,1 WA@15,4 15,4=4");
    Open(Replaced(WithLine(text, 1, " HM , and more"), " \r\n ", " ,\t"));
    EXPECT_TRUE(played.game.blnOpen);
    EXPECT_EQ(record.bytScenario, 7);
    EXPECT_EQ(CaptionOfSquare(played.game, 1, 1), "J    ");
    EXPECT_EQ(record.bytTerrain[15][4], Sand);
}

TEST_F(LoadGame, SurvivesBeingCutAtEveryByte) {
    const std::string saved = SavedGame("Q@1,1 WA@15,4 15,4=4");
    std::vector<std::size_t> loaded;
    for (std::size_t length = 0; length <= saved.size(); ++length) {
        const std::string cut = saved.substr(0, length);
        played.dialogs.queued = {Answer::Cancel};
        Open(cut);
        EXPECT_EQ(ReadFile(played.path), cut);
        if (played.game.blnOpen) {
            loaded.push_back(length);
            played.ExpectBoardShown();
            continue;
        }
        ASSERT_EQ(played.dialogs.boxes.size(), 1u) << length;
        EXPECT_TRUE(played.game.blnEnded && played.game.exitStatus == 1) << length;
        const int readInLastLine = cut.find_last_not_of(" \r") + 1 > cut.rfind('\n') + 1;
        const auto line = 1 + std::count(cut.begin(), cut.end(), '\n') + readInLastLine;
        EXPECT_EQ(played.dialogs.boxes[0].Offered, Buttons::RetryCancel);
        EXPECT_TRUE(played.dialogs.boxes[0].Text.starts_with("Invalid game format\nLine " +
                                                             std::to_string(line) + ": "))
            << length << " " << played.dialogs.boxes[0].Text;
    }
    // The game is whole once the turn has been read, and once the last terrain code has.
    const std::size_t turn = 4 + 2 * (54 + 5 + 2) + 2, end = saved.size();
    EXPECT_EQ(loaded, (std::vector<std::size_t>{turn, turn + 1, turn + 2, turn + 3, end - 3,
                                                end - 2, end - 1, end}));
}

TEST_F(LoadGame, RetryAfterTheFileWasMended) {
    const std::string good = SavedGame("Q@1,1 WA@15,4 15,4=4");
    // Nothing was known of the file: it is read from its first line.
    played.dialogs.queued = {Answer::Retry};
    played.dialogs.whileShown = [&] { WriteFile(played.path, WithLine(good, 1, "SB")); };
    played.Open();
    EXPECT_EQ(record.bytScenario, 1);

    // The scenario was known: it stays, and the message of the older form is not shown again.
    played.dialogs.queued = {Answer::Retry, Answer::Retry};
    played.dialogs.whileShown = [&] {
        if (played.dialogs.boxes.size() == 3) WriteFile(played.path, WithLine(good, 1, "SB"));
    };
    Open(WithLine(WithLine(good, 1, "7"), 20, "?"));
    ASSERT_EQ(played.dialogs.boxes.size(), 3u);
    EXPECT_EQ(played.dialogs.boxes[0].Text,
              "The file may be loaded with the incorrect scenario. If it appears that the loaded "
              "scenario is incorrect, select the Convert File menu item from the Tools menu.");
    EXPECT_EQ(played.dialogs.boxes[1].Title, "Error 13");
    EXPECT_EQ(played.dialogs.boxes[2].Text, played.dialogs.boxes[1].Text);
    EXPECT_EQ(record.bytScenario, 7);
    EXPECT_TRUE(controls.mnuConvertFile.Visible);
    EXPECT_EQ(record.strPlayerName[1], "Red");
    EXPECT_EQ(controls.Caption, "Hollowmere Tactical Game - game.tgf (Red vs. Blue)");
    played.ExpectBoardShown();
}

}  // namespace
}  // namespace qarn
