#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/stat.h>

#include <chrono>
#include <thread>

#include "desktop/deferred_services.h"
#include "desktop/help_program.h"
#include "desktop/program_folders.h"
#include "desktop/settings_file.h"
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

// ---- Settings ----

TEST(SettingsFile, KeepsValuesAcrossRuns) {
    const char* config = getenv("XDG_CONFIG_HOME");
    ASSERT_NE(config, nullptr) << "The settings of whoever runs this would be changed.";
    const std::string file = std::string(config) + "/QARN.ini";
    std::filesystem::remove_all(config);
    SettingsFile store;
    EXPECT_EQ(store.Read("QARN", "Summary", "1", "True"), "True");

    const std::string value = " C:\\games; #1 = \"Zoë's\"\t\n";
    store.Write("QARN", "Summary", "1", "False");
    store.Write("QARN", "Filepath", "1", value);
    store.Write("QARN", "Filepath", "2", "of another user");
    store.Write("QARN", "Filepath", "", "of nobody");
    SettingsFile later;
    EXPECT_EQ(later.Read("QARN", "Summary", "1", "True"), "False");
    EXPECT_EQ(later.Read("QARN", "Filepath", "1", ""), value);
    EXPECT_EQ(later.Read("QARN", "Filepath", "2", ""), "of another user");
    EXPECT_EQ(later.Read("QARN", "Filepath", "", ""), "of nobody");
    EXPECT_EQ(later.Read("Other", "Filepath", "1", "none"), "none");

    WriteFile(file, "[House]\na=1\nthis is not\x01 a setting\n=2\n[Offer\n# mine\nb=3\n");
    EXPECT_EQ(store.Read("QARN", "Summary", "1", "True"), "True");
    store.Write("QARN", "Summary", "1", "False");
    EXPECT_EQ(store.Read("QARN", "Summary", "1", "True"), "False");
    EXPECT_EQ(store.Read("QARN", "House", "a", ""), "1");
    EXPECT_EQ(store.Read("QARN", "House", "b", ""), "3") << "a damaged line stands before it";
    EXPECT_TRUE(Has(ReadFile(file), "# mine"));

    std::filesystem::remove_all(config);
    WriteFile(config, "in the way");
    EXPECT_EQ(ErrorOf<std::runtime_error>([&] { store.Write("QARN", "Summary", "1", "True"); }),
              "Not a directory.\n" + file);
    EXPECT_EQ(store.Read("QARN", "Summary", "1", "True"), "True");
    std::filesystem::remove(config);
}

TEST(SettingsFile, PassesOverWhatNobodyCanHaveWritten) {
    const std::string config = getenv("XDG_CONFIG_HOME");
    std::filesystem::create_directories(config);
    const std::string file = config + "/QARN.ini";
    const std::string large = "[Summary]\n1=False\n#" + std::string(1 << 20, 'x');
    for (const bool pipe : {true, false}) {
        std::filesystem::remove(file);
        ASSERT_TRUE(!pipe || mkfifo(file.c_str(), 0600) == 0);
        if (!pipe) WriteFile(file, large);
        SettingsFile store;
        testing::internal::CaptureStderr();
        for (int time = 0; time < 2; ++time) {
            EXPECT_EQ(store.Read("QARN", "Summary", "1", "True"), "True");
        }
        const std::string why = pipe ? "It is not an ordinary file.\n" : "File too large.\n";
        EXPECT_EQ(testing::internal::GetCapturedStderr(),
                  "The settings are passed over: " + why + file + "\n");
        EXPECT_THROW(store.Write("QARN", "Summary", "1", "True"), std::runtime_error);
    }
    EXPECT_EQ(ReadFile(file), large);
    std::filesystem::remove(file);
}

}  // namespace
}  // namespace qarn
