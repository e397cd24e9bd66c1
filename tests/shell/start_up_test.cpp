#include "shell/run_start_event.h"

#include <gtest/gtest.h>

#include "shell/command_line.h"
#include "support/fake_ports.h"
#include "support/temp_folder.h"

namespace qarn {
namespace {

struct Started {
    // Which window follows, and the text of every box.
    std::string Outcome() const {
        const char* next[] = {"this", "start", "game", "none"};
        std::string outcome = next[static_cast<int>(window.Next)];
        for (const MessageBox& box : dialogs.boxes) outcome += "|" + box.Title + "|" + box.Text;
        for (const std::string& topic : help.topics) outcome += "|" + topic;
        return outcome;
    }

    FakeDialogs dialogs;
    FakeHelp help;
    FakeDisplay display;
    FakeComputer computer;
    StartUpWindow window{dialogs, help, display, computer, "", {800, 600}};
};

std::string StartOn(const DisplayMode& screen, const std::vector<DisplayMode>& modes) {
    Started program;
    program.window.screen = screen;
    program.display.modes = modes;
    Form_Load(program.window);
    EXPECT_EQ(program.window.Visible, program.window.Next == NextWindow::Same);
    return program.Outcome();
}

TEST(StartUpTest, TheScreenAndTheDisplayDecide) {
    const std::string tooSmall = "none||Your computer does not support 1024x768";
    EXPECT_EQ(StartOn({1024, 768}, {}), "start");
    EXPECT_EQ(StartOn({800, 600}, {}), tooSmall);
    EXPECT_EQ(StartOn({1023, 768}, {{800, 600}}), tooSmall);
    EXPECT_EQ(StartOn({1024, 767}, {{1600, 600}, {800, 600}}), tooSmall);
    EXPECT_EQ(StartOn({1024, 767}, {{1600, 600}, {800, 900}}), "this");
}

TEST(StartUpTest, NoGoesOnAndHelpWaits) {
    Started program;
    Form_Load(program.window);
    cmdHelp_Click(program.window);
    EXPECT_EQ(program.Outcome(), "this|Troubleshooting.htm#ManualFix");
    cmdNo_Click(program.window);
    EXPECT_EQ(program.Outcome(), "start|Troubleshooting.htm#ManualFix");
    EXPECT_EQ(program.display.changes, "");
}

TEST(StartUpTest, AnEventThatFailsLeavesTheWindowOrGoesOn) {
    const auto fail = [](StartUpWindow& window) {
        window.Visible = !window.Visible;
        window.Next = NextWindow::Game;
        throw std::out_of_range("vector");
    };
    for (const bool onScreen : {true, false}) {
        Started program;
        program.window.Visible = onScreen;
        RunEvent(program.window, "cmdYes_Click", fail);
        EXPECT_EQ(program.Outcome(),
                  std::string(onScreen ? "this" : "start") + "||Internal error in cmdYes_Click.");
        EXPECT_EQ(program.window.Visible, onScreen);
    }
}

std::string AfterYes(DisplayChange result, Answer answer, const std::string& changes) {
    Started program;
    program.window.strCommandLine = "/game.tgf";
    program.display.result = result;
    program.dialogs.queued = {answer};
    cmdYes_Click(program.window);
    EXPECT_EQ(program.display.changes, changes);
    return program.Outcome();
}

TEST(StartUpTest, YesSwitches) {
    EXPECT_EQ(AfterYes(DisplayChange::Successful, {}, "1024x768 1024x768 permanent "),
              "game|Resolution Changed|Screen resolution changed");
    const std::string restart =
        "game|Screen Resolution|You must restart your computer to apply these changes.\n\nDo you "
        "want to restart now?";
    EXPECT_EQ(AfterYes(DisplayChange::Restart, Answer::No, "1024x768 "), restart);
    EXPECT_EQ(AfterYes(DisplayChange::Restart, Answer::Yes, "1024x768 "),
              restart + "||The computer can not be restarted. Not allowed.");
    EXPECT_EQ(AfterYes(DisplayChange::Failed, {}, "1024x768 "),
              "game||Please manualy change your resolution to 1024x768.\nThe program was unable to "
              "change it.\nClick OK to view instructions on how to change the settings manually."
              "|Troubleshooting.htm#ManualFix");
}

TEST(CommandLineTest, NamesAGameFile) {
    const TempFolder folder;
    const std::string here = std::filesystem::current_path().string();
    const std::string odd = folder / "back\\slash \"quoted\".tgf";
    WriteFile(odd, "");
    const std::vector<std::pair<std::string, std::string>> rows{
        {"", ""},
        {"\"\"", ""},
        {"test.tgf", here + "/test.tgf"},
        {"\"/my games/test.tgf\"", "/my games/test.tgf"},
        {"/my games/\xC3\xA9 100%.tgf", "/my games/\xC3\xA9 100%.tgf"},
        {"\"C:\\Games\\Saved\\test.tgf\"", here + "/C:/Games/Saved/test.tgf"},
        {odd, odd},
        {"\"" + odd + "\"", odd},
    };
    for (const auto& [line, path] : rows) EXPECT_EQ(GamePathOf(line), path);

    char my[] = "my";
    char game[] = "game.tgf";
    char* arguments[] = {my, game};
    EXPECT_EQ(CommandLine(arguments), "my game.tgf");
}

}  // namespace
}  // namespace qarn
