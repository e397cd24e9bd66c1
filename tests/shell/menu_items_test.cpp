#include <gtest/gtest.h>

#include "shell/about.h"
#include "shell/default_path.h"
#include "shell/kept_opponents.h"
#include "shell/program_texts.h"
#include "shell/user_settings.h"
#include "support/played_game.h"

namespace qarn {
namespace {

using Texts = std::vector<std::string>;

const std::string filepathSetting = "QARN/Filepath/04505230";

TEST(UserSettingsTest, KeysOfUsers) {
    EXPECT_EQ(GetUserKey("Al"), "04505230");
    EXPECT_EQ(GetUserKey("A\xFF"), "57215230");
    EXPECT_EQ(GetUserKey(""), "");
}

TEST(DefaultPathTest, IsTheSettingOrAFolderThatCanBeWrittenTo) {
    PlayedGame world;
    Ports& ports = world.game.ports;
    const std::string data = world.folder / "data/qarn";
    ports.folders = {world.folder.Path().string(), data};
    EXPECT_EQ(DefaultPath(ports), world.folder.Path().string());
    EXPECT_FALSE(std::filesystem::exists(data));
    ports.folders.isBuildTree = true;
    EXPECT_EQ(DefaultPath(ports), data);
    EXPECT_TRUE(std::filesystem::remove(data));  // it had been made
    ports.folders.isBuildTree = false;
    ports.folders.program = world.folder / "missing";  // nobody can write there
    EXPECT_EQ(DefaultPath(ports), data);
    EXPECT_TRUE(std::filesystem::is_directory(data));

    world.settings.values[filepathSetting] = "/no/such/folder";
    EXPECT_EQ(DefaultPath(ports), "/no/such/folder");
    world.settings.values[filepathSetting] = std::string(5000, 'x');
    EXPECT_EQ(DefaultPath(ports), data);
}

// The opponents that are kept for a game.
std::string Kept(const Ports& ports, const std::string& path) {
    const Opponents kept = KeptOpponents(ports, path);
    return std::string(kept[1]) + " " + std::string(kept[2]);
}

TEST(KeptOpponentsTest, BelongToTheFileOfAGame) {
    PlayedGame world("computer2 Q@13,4");
    Ports& ports = world.game.ports;
    ports.folders.userData = world.folder / "data/qarn";
    EXPECT_FALSE(world.Do("menu mnuScout1"));  // a person plays this side
    world.Do("menu mnuClassic2");
    EXPECT_FALSE(std::filesystem::exists(world.folder / "data"));
    world.Do("menu mnuWarlord2");
    EXPECT_EQ(Kept(ports, world.path), "classic warlord");
    std::filesystem::create_symlink(world.path, world.folder / "link to it");
    EXPECT_EQ(Kept(ports, world.folder / "link to it"), "classic warlord");
    EXPECT_EQ(Kept(ports, world.folder / "other.tgf"), "classic classic");

    const std::string other = world.folder / "a b.tgf";
    world.Do("saveas a b.tgf");
    EXPECT_EQ(Kept(ports, world.folder / "a"), "classic warlord");
    world.Do("menu mnuClassic2");
    EXPECT_EQ(Kept(ports, world.folder / "a"), "classic classic");
    EXPECT_EQ(Kept(ports, world.path), "classic warlord");

    // What is damaged is passed over, and nothing grows for ever.
    const std::string file = ports.folders.userData + "/opponents";
    WriteFile(file, "\x01\xFF scout\nscout nobody /x\nscout\n\n scout captain  " + other + "\n");
    EXPECT_EQ(Kept(ports, other), "scout captain");
    for (int game = 0; game < 120; ++game) {
        KeepOpponents(ports, "/games/" + std::to_string(game), {"", "captain", "classic"});
    }
    EXPECT_EQ(Kept(ports, "/games/20"), "captain classic");
    EXPECT_EQ(Kept(ports, "/games/19"), "classic classic");
    WriteFile(file, std::string(2 << 20, ' '));
    EXPECT_EQ(Kept(ports, other), "classic classic");

    std::filesystem::remove_all(ports.folders.userData);
    WriteFile(ports.folders.userData, "in the way");
    KeepOpponents(ports, other, {"", "scout", "scout"});
    EXPECT_TRUE(
        Has(world.dialogs.boxes.back().Text, "The opponents of this game can not be kept: "));
}

TEST(FileTypeTest, IsRegisteredOnce) {
    PlayedGame world("Q@13,4");
    world.game.ports.folders.program = "/opt/my games";
    world.Do("menu mnuTGF");
    EXPECT_EQ(world.fileTypes.keys,
              Parts(R"(.tgf; tgf_ext; tgf_ext\DefaultIcon; tgf_ext\shell; tgf_ext\shell\open; )"
                    R"(tgf_ext\shell\open\command)"));
    EXPECT_EQ(world.fileTypes.values,
              (std::map<std::string, std::string>{
                  {".tgf", "tgf_ext"},
                  {"tgf_ext", "Tactical Game File"},
                  {"tgf_ext\\DefaultIcon", ""},
                  {"tgf_ext\\shell\\open\\command", "\"/opt/my games/qarn\""}}));
    world.Do("menu mnuTGF");
    EXPECT_EQ(world.fileTypes.keys.size(), 6u);
}

// The boxes of a registration in which one key cannot be made and another takes no value.
std::string BoxesOf(const std::string& uncreatable, const std::string& unwritable) {
    PlayedGame world("Q@13,4");
    world.fileTypes.uncreatable = uncreatable;
    world.fileTypes.unwritable = unwritable;
    world.Do("menu mnuTGF");
    EXPECT_TRUE(world.game.controls.mnuTGF.Checked);
    std::string texts;
    for (const MessageBox& box : world.dialogs.boxes) texts += box.Text.substr(0, 10) + "|";
    return texts + std::to_string(world.fileTypes.keys.size());
}

TEST(FileTypeTest, AFailureEndsTheWriting) {
    EXPECT_EQ(BoxesOf("", ".tgf"), "Error Sett|The TGF fi|1");
    EXPECT_EQ(BoxesOf("tgf_ext", ""), "Error: Cre|Error Sett|The TGF fi|2");
    EXPECT_EQ(BoxesOf("tgf_ext\\shell", ""), "Error: Cre|The TGF fi|6");
}

TEST(AboutTest, TellsTheVersion) {
    EXPECT_EQ(ProductNameVersion(), "Thornmere Series Tactical Game Version " QARN_VERSION);
}

}  // namespace
}  // namespace qarn
