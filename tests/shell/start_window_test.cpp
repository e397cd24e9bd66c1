#include "shell/run_start_event.h"

#include <gtest/gtest.h>

#include "core/player_error.h"
#include "support/played_game.h"

namespace qarn {
namespace {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;

class StartWindowTest : public testing::Test {
protected:
    StartWindowTest() {
        window.ports.folders.program = folder.Path().string();
        Form_Load(window);
    }

    void Press(void (*handler)(StartWindow&)) { RunEvent(window, "Press", handler); }
    void Type(const std::string& text) {
        controls.txtNewFilePath.Text = text;
        txtNewFilePath_Change(window);
    }
    void TypeAndPressNew(const std::string& text) {
        Type(text);
        Press(cmdNew_Click);
    }
    void SelectScenario(int scenario) {
        controls.lstScenarios.ListIndex = scenario - 1;
        lstScenarios_Click(window);
    }
    void SelectFile(int index) {
        controls.fileLoad.ListIndex = index;
        fileLoad_Click(window);
    }
    void ComeToLastStep(const std::string& name) {
        TypeAndPressNew(name);
        SelectScenario(7);
        Press(cmdNew_Click);
        TypeAndPressNew("Red");
        Type("Blue");
    }

    PlayedGame world;
    FakeDialogs& dialogs = world.dialogs;
    const TempFolder& folder = world.folder;
    FakeWastebasket wastebasket;
    StartWindow window{.ports = world.game.ports, .wastebasket = wastebasket};
    StartControls& controls = window.controls;
};

TEST_F(StartWindowTest, TheWizardKeepsWhoPlaysForTheComputer) {
    window.ports.folders.userData = folder / "data";
    const auto tick = [&](bool ticked) {
        controls.chkComputer.Value = ticked;
        chkComputer_Click(window);
    };
    ComeToLastStep("Game");
    tick(true);
    controls.cboOpponent.ListIndex = 2;
    Press(cmdNew_Click);
    EXPECT_EQ(KeptOpponents(window.ports, window.strGamePath),
              (Opponents{"", "classic", "captain"}));

    // The last choice stands there again, and a new game of that name has opponents of its own.
    EXPECT_EQ(world.settings.values["QARN/Opponent/04505230"], "captain");
    controls = {};
    window.state = {};
    Form_Load(window);
    ComeToLastStep("Game");
    tick(true);
    EXPECT_EQ(controls.cboOpponent.ListIndex, 2);
    tick(false);
    Press(cmdNew_Click);
    EXPECT_EQ(KeptOpponents(window.ports, window.strGamePath),
              (Opponents{"", "classic", "classic"}));
    EXPECT_EQ(world.settings.values["QARN/Opponent/04505230"], "captain");
}

TEST_F(StartWindowTest, ANewGameWhoseNamesCanNotBeWrittenStaysAtItsStep) {
    ComeToLastStep("Game");
    TypeAndPressNew("\xCE\xB1");
    EXPECT_TRUE(Has(dialogs.boxes.back().Text, "can not be stored in a game file."));
    EXPECT_EQ(window.Next, NextWindow::Same);
}

TEST_F(StartWindowTest, AGameThatIsReplacedGoesToTheWastebasket) {
    WriteFile(folder / "Game.tgf", "old");
    ComeToLastStep("Game.tgf");
    wastebasket.refusal = "There is none.";
    dialogs.queued = {Answer::No, Answer::Yes};
    Press(cmdNew_Click);
    const std::string why =
        "A game of this name exists already and can not be moved to the wastebasket. There is "
        "none.\n";
    EXPECT_EQ(dialogs.boxes.back().Text,
              why + (folder / "Game.tgf") + "\nDo you want to replace it for good?");
    EXPECT_TRUE(dialogs.boxes.back().DeclinedByDefault);
    EXPECT_EQ(ReadFile(folder / "Game.tgf"), "old");
    EXPECT_EQ(window.Next, NextWindow::Same);
    Press(cmdNew_Click);
    const std::string made = ReadFile(folder / "Game.tgf");
    EXPECT_EQ(made.find("HM\r\nRed "), 0u);

    wastebasket.refusal.clear();
    Press(cmdNew_Click);
    EXPECT_EQ(wastebasket.thrownAway, Texts{made});
    EXPECT_EQ(folder.Entries(), 1);

    fs::create_directory(folder / "elsewhere");  // a link stays one, and no game is lost behind it
    fs::rename(folder / "Game.tgf", folder / "elsewhere/Game.tgf");
    fs::create_symlink("elsewhere/Game.tgf", folder / "Game.tgf");
    Press(cmdNew_Click);
    EXPECT_EQ(wastebasket.thrownAway.size(), 2u);
    EXPECT_TRUE(fs::is_symlink(folder / "Game.tgf"));
    EXPECT_EQ(ReadFile(folder / "elsewhere/Game.tgf"), made);
}

TEST_F(StartWindowTest, SavedGamesAreListedDeletedAndLoaded) {
    for (const char* name : {"b.tgf", "A.TGF", "c.tgf", "notes.txt"}) {
        WriteFile(folder / name, "");
        fs::last_write_time(folder / name, fs::file_time_type());  // all at once
    }
    fs::create_directory(folder / "folder.tgf");
    PrepareStartWindow(window, true);
    EXPECT_EQ(controls.SetFocus, StartControl::fileLoad);
    EXPECT_EQ(controls.fileLoad.List, (Texts{"A.TGF", "b.tgf", "c.tgf"}));
    SelectFile(2);
    fs::remove(folder / "b.tgf");  // the list follows, and what is selected stays so
    RefreshFileList(window);
    EXPECT_EQ(controls.fileLoad.ListIndex, 1);
    dialogs.queued = {Answer::Yes, Answer::Yes};
    fs::remove(folder / "c.tgf");
    fs::create_directory(folder / "c.tgf");
    Press(cmdDelete_Click);
    EXPECT_EQ(dialogs.boxes.back().Text,
              "The file can not be deleted. Is a directory.\n" + (folder / "c.tgf"));
    fs::remove(folder / "c.tgf");
    Press(cmdDelete_Click);  // it is gone already
    EXPECT_FALSE(controls.cmdLoad.Enabled || controls.cmdDelete.Enabled);
    EXPECT_EQ(controls.fileLoad.List, Texts{"A.TGF"});
    cmdLoad_Click(window);    // nothing is selected
    cmdBrowse_Click(window);  // cancelled
    EXPECT_EQ(window.Next, NextWindow::Same);
    dialogs.openFileName = "/elsewhere/game.tgf";
    cmdBrowse_Click(window);
    EXPECT_EQ(window.strGamePath, "/elsewhere/game.tgf");
    SelectFile(0);
    fileLoad_DblClick(window);
    EXPECT_EQ(window.strGamePath, folder / "A.TGF");
    EXPECT_EQ(window.Next, NextWindow::Game);
}

TEST_F(StartWindowTest, TellsOfEachGameWhatItIsTheOneSavedLastFirst) {
    const auto noon =
        fs::file_time_type::clock::from_sys(std::chrono::system_clock::from_time_t(1'780'000'000));
    int later = 0;
    const auto write = [&](const std::string& name, const std::string& text) {
        WriteFile(folder / name, text);
        fs::last_write_time(folder / name, noon + std::chrono::minutes(later++));
    };
    write("a.tgf", Replaced(SavedGame("turn2"), "Red", "Zo\xEB"));
    write("b.tgf", Replaced(SavedGame("ST turn0"), "Red", "Zo\xEB"));
    write("c.tgf", "HM\r\nOne");
    RefreshFileList(window);
    EXPECT_EQ(controls.fileLoad.List, (Texts{"c.tgf", "b.tgf", "a.tgf"}));
    const Texts& told = controls.fileLoad.Told;
    EXPECT_TRUE(Has(told[0], "side 2"));
    EXPECT_TRUE(told[1].starts_with("Stonemantle: Zo\u00EB and Blue. Not begun yet. ")) << told[1];
    EXPECT_TRUE(told[2].starts_with("Hollowmere: Zo\u00EB and Blue. Blue to move. 2")) << told[2];
    EXPECT_TRUE(Has(told[2], " May 2026, "));
}

TEST_F(StartWindowTest, AnEventThatFailsLeavesTheWindowAsItWas) {
    Type("Game");
    const std::string internal = "Internal error in cmdNew_Click.";
    const std::pair<void (*)(), std::string> rows[] = {
        {[] { throw PlayerError("The disk is full."); }, "The disk is full."},
        {[] { Texts().at(1); }, internal},
        {[] { throw 1; }, internal}};
    for (const auto& [fail, told] : rows) {
        RunEvent(window, "cmdNew_Click", [&fail = fail](StartWindow& changed) {
            cmdNew_Click(changed);
            changed.strGamePath = "/game.tgf";
            changed.Next = NextWindow::Game;
            fail();
        });
        EXPECT_EQ(dialogs.boxes.back().Text, told);
        EXPECT_TRUE(controls.cmdNew.Caption == "&New" && controls.txtNewFilePath.Text == "Game");
        EXPECT_TRUE(window.state.bytWizardStep == 0 && window.strGamePath.empty());
        EXPECT_EQ(window.Next, NextWindow::Same);
    }
}

}  // namespace
}  // namespace qarn
