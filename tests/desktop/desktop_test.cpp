#include <gtest/gtest.h>
#include <stdlib.h>

#include <chrono>
#include <thread>

#include "desktop/deferred_services.h"
#include "desktop/help_program.h"
#include "desktop/program_folders.h"
#include "shell/file_commands.h"
#include "support/played_game.h"

namespace qarn {
namespace {

namespace fs = std::filesystem;

// What the desktop knows and keeps in a test is in folders of the test.
fs::path DataFolder() { return getenv("XDG_DATA_HOME"); }

void ForgetEverything() {
    fs::remove_all(DataFolder());
    fs::remove_all(getenv("XDG_CONFIG_HOME"));
    fs::create_directories(DataFolder());
}

// What a command of the shell prints.
std::string OutputOf(const std::string& command) {
    FILE* pipe = popen(command.c_str(), "r");
    std::string output;
    for (int c = fgetc(pipe); c != EOF; c = fgetc(pipe)) output += static_cast<char>(c);
    EXPECT_EQ(pclose(pipe), 0) << command;
    return output;
}

/// A program that only reports with which arguments it was started.
class TellingProgram {
public:
    explicit TellingProgram(const std::string& path) : path_(path) {
        fs::create_directories(fs::path(path).parent_path());
        WriteFile(path,
                  "#!/bin/sh\nprintf '[%s]' \"$@\" > \"$0.now\"\nmv \"$0.now\" \"$0.told\"\n");
        fs::permissions(path, fs::perms::owner_all);
    }

    std::string WaitForArguments() const {
        for (int i = 0; i < 200 && !fs::exists(path_ + ".told"); ++i) {
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
        }
        const std::string arguments = ReadFile(path_ + ".told");
        fs::remove(path_ + ".told");
        return arguments;
    }

private:
    std::string path_;
};

TEST(XdgFileTypesTest, TheDesktopsToolsFindTheProgram) {
    ForgetEverything();
    PlayedGame world;
    const std::string folder = world.folder / R"(it's "my" $HOME\bin)";
    const TellingProgram program(folder + "/qarn");
    DeferredFileTypes fileTypes;
    Game game{
        .record = {},
        .controls = {},
        .ports = {
            world.dialogs, world.random, world.help, world.settings, fileTypes, {folder, ""}}};
    LoadFileTypeMark(game);
    EXPECT_FALSE(game.controls.mnuTGF.Checked);
    mnuTGF_Click(game);
    EXPECT_EQ(world.dialogs.boxes.size(), 1u);

    const std::string file = world.folder / "my \"first\" game 50%.tgf";
    WriteFile(file, "HM\r\n");
    // Without a desktop session, xdg-mime asks the tool of this one.
    EXPECT_EQ(OutputOf("XDG_CURRENT_DESKTOP=GNOME xdg-mime query filetype '" + file + "'"),
              "application/x-qarn-game\n");
    EXPECT_EQ(OutputOf("xdg-mime query default application/x-qarn-game"), "qarn-tgf_ext.desktop\n");
    EXPECT_EQ(OutputOf("desktop-file-validate \"$XDG_DATA_HOME\"/applications/*.desktop"), "");
    OutputOf("gio open '" + file + "'");
    EXPECT_EQ(program.WaitForArguments(), "[" + file + "]");
    EXPECT_EQ(fileTypes.DefaultValue(".tgf"), "qarn-tgf_ext.desktop");
    EXPECT_EQ(DeferredFileTypes().DefaultValue(".tgf"), "qarn-tgf_ext.desktop");
}

TEST(XdgFileTypesTest, AProgramThatIsNotThereIsNotRegistered) {
    ForgetEverything();
    DeferredFileTypes fileTypes;
    fileTypes.SetDefaultValue(".tgf", "tgf_ext");
    EXPECT_FALSE(fileTypes.SetDefaultValue("tgf_ext\\shell\\open\\command", "\"/nowhere/qarn\""));
    EXPECT_FALSE(DeferredFileTypes().DefaultValue(".tgf"));
}

TEST(HelpProgramTest, IsStartedWithFileAndTopic) {
    const TempFolder folder;
    FakeDialogs dialogs;
    HelpProgram help(folder.Path().string(), dialogs);
    help.ShowHelp("");
    ASSERT_EQ(dialogs.boxes.size(), 1u);
    EXPECT_EQ(dialogs.boxes[0].Text.find("The help viewer can not be started: "), 0u);

    const TellingProgram viewer(folder / "qarn-help");
    for (const char* topic : {"Terrain Info.htm#Sand", ""}) {
        help.ShowHelp(topic);
        EXPECT_EQ(viewer.WaitForArguments(), "[" + (folder / "Help.chm") + "][" + topic + "]");
    }
    fs::create_directory(folder / "Help");
    help.ShowHelp("");
    EXPECT_EQ(viewer.WaitForArguments(), "[" + (folder / "Help") + "][]");
    WriteFile(folder / "Help.chm", "compiled");
    help.ShowHelp("");
    EXPECT_EQ(viewer.WaitForArguments(), "[" + (folder / "Help.chm") + "][]");
    EXPECT_EQ(dialogs.boxes.size(), 1u);
}

TEST(ProgramFoldersTest, TellABuildTree) {
    const TempFolder folder;
    const std::string path = folder.Path().string();
    EXPECT_FALSE(IsBuildTree(path));
    WriteFile(folder / "CMakeCache.txt", "");
    EXPECT_TRUE(IsBuildTree(path));
    EXPECT_FALSE(IsBuildTree(folder / "missing"));

    const ProgramFolders found = FindProgramFolders();
    EXPECT_TRUE(fs::exists(found.program + "/qarn_desktop_tests"));
    EXPECT_EQ(found.isBuildTree, IsBuildTree(found.program));
    EXPECT_EQ(found.userData, DataFolder() / "qarn");
}

TEST(DesktopWastebasketTest, KeepsTheFile) {
    ForgetEverything();
    const fs::path file = DataFolder() / "my game.tgf";  // on the disk of the home folder
    WriteFile(file, "old");
    DeferredWastebasket().MoveThere(file);
    EXPECT_FALSE(fs::exists(file));
    EXPECT_EQ(ReadFile(DataFolder() / "Trash/files/my game.tgf"), "old");
    EXPECT_THROW(DeferredWastebasket().MoveThere(file), std::runtime_error);
}

}  // namespace
}  // namespace qarn
