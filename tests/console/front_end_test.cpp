#include "console/front_end.h"

#include <gtest/gtest.h>

#include "console/session.h"
#include "core/player_error.h"
#include "support/console_game.h"
#include "support/saved_game.h"

namespace qarn {
namespace {

std::string Named(const std::string& position, std::string red, std::string blue) {
    red.resize(54, ' ');
    blue.resize(54, ' ');
    return SavedGame(position).replace(4, red.size(), red).replace(4 + 61, blue.size(), blue);
}

TEST(Terminal, ShowsAmpersandsInNamesAndNoneInCaptions) {
    ConsoleGame rockers(Named("turn1 WS@3,7 Z@1,1", "Rock & Roll", "R&B"));
    const std::string text = rockers.ForPerson(
        "press cmdMove; click 3 7; press cmdDoneSel; click 2 7; click 2 6; click 2 7; click 2 6; "
        "press cmdMove");
    for (const char* part : {" - game.tgf (Rock & Roll vs. R&B)\n", "\nIt is Rock & Roll's turn.\n",
                             "\nYou have 0 mobility units left.\nClick Done Moving\n",
                             "cmdMove (Done Moving)", "\nIt is R&B's turn.\n"}) {
        EXPECT_TRUE(Has(text, part));
    }
    ConsoleGame bob(Named("turn2 Q@3,7 Z@1,1", "&", "&Bob"));
    EXPECT_TRUE(Has(bob.ForPerson(""), "(& vs. &Bob)"));
    EXPECT_TRUE(Has(bob.ForPerson(""), "\nIt is &Bob's turn.\n"));
}

// A name that comes with a file commands no terminal.
TEST(Terminal, ShowsControlCharactersAsEscapes) {
    ConsoleGame game(Named("turn1 WS@3,7 Z@1,1", "\x1b[2J\a\x7f\x81\xe9", "B\xf6\x9bse"));
    const std::string text = game.ForPerson("journal; open \xe9\x1b[31m\x9b; menu New; no");
    for (const char* part : {"(\\x1b[2J\\x07\\x7f\\x81é vs. Bö›se)",
                             "\nIt is \\x1b[2J\\x07\\x7f\\x81é's turn.\n", "\\x1b[31m\\x9b"}) {
        EXPECT_TRUE(Has(text, part));
    }
    EXPECT_EQ(text.find_first_of("\x1b\a\x7f"), text.npos);
    EXPECT_FALSE(Has(text, "\xc2\x81"));
}

TEST(Terminal, TellsSidesByColourAndByTheCaseOfAMark) {
    ConsoleGame game(SavedGame("Q@1,1 Z@2,1 BT@3,1 WS@4,1 HF@4,1 BT@4,1 ZA1@5,1 ZA2@5,1 ZA3@5,1"));
    const auto secondLine = [](const std::string& text) {
        const std::string line = text.substr(text.rfind("\n 1 "));
        return line.substr(line.find('\n', 1) + 4, 20);
    };
    EXPECT_EQ(secondLine(game.ForPerson("state")), "            +HF +ZA2");
    EXPECT_EQ(secondLine(game.ForPerson("menu mnuSides")), "X   x       YHF yZA2");
    EXPECT_TRUE(
        Has(game.ForPerson("state", true), "\x1b[38;2;255;255;255;48;2;40;16;16mZ  \x1b[0m"));
}

TEST(Terminal, HelpNamesEveryCommand) {
    const std::string help = ConsoleGame(SavedGame("HM")).ForPerson("help");
    std::vector<std::string> names{"help", "quit"};
    for (const Session::Command& command : Session::Commands()) names.emplace_back(command.name);
    for (const std::string& name : names) {
        EXPECT_TRUE(Has(help, "  " + name + " ") || Has(help, " " + name + " I")) << name;
    }
}

// Fails when a key is to be created, and from then on when one is read, as a load does.
struct FailingFileTypes : FakeFileTypes {
    explicit FailingFileTypes(void (*failure)()) : fail(failure) {}

    bool CreateKey(const std::string& key) override {
        keys.push_back(key);
        fail();
        return false;
    }
    std::optional<std::string> DefaultValue(const std::string&) override {
        if (!keys.empty()) fail();
        return std::nullopt;
    }

    void (*fail)();
};

TEST(FrontEnds, SurviveWhateverACommandThrows) {
    const std::string fire = "The desk is on fire.", inMenu = "Internal error in mnuTGF_Click.",
                      inOpen = "Internal error in Form_Load.";
    const std::tuple<void (*)(), std::string, std::string> rows[] = {
        {[] { throw PlayerError("The desk is on fire."); }, fire, fire},
        {[] { std::vector<int>().at(7); }, inMenu, inOpen},
        {[] { throw 7; }, inMenu, inOpen},
    };
    for (const auto& [fail, ofMenu, ofOpen] : rows) {
        SCOPED_TRACE(ofOpen);
        FailingFileTypes failing(fail);
        ConsoleGame game(SavedGame("Q@9,10 Z@1,1"));
        game.fileTypes = &failing;
        const std::string commands =
            "press cmdMove; menu mnuTGF; press cmdMove; click 9 10; "
            "press cmdDoneSel; press cmdMove; state; open " +
            game.path + "; press cmdMove";
        const std::vector<nlohmann::json> objects = game.ForProgram(commands);
        ASSERT_EQ(objects.size(), 9u);
        EXPECT_EQ(objects[1]["boxes"][0]["text"], ofMenu);
        EXPECT_EQ(objects[7]["boxes"][0]["text"], ofOpen);
        EXPECT_EQ(objects[7]["error"], "The game could not be opened.");
        EXPECT_EQ(objects[7]["record"], objects[6]["record"]);
        EXPECT_EQ(objects[7]["lblStatus"], "It is Blue's turn.");
        EXPECT_EQ(objects[8]["record"]["blnMoveMode"], true);
        EXPECT_EQ(game.status, 0);

        FailingFileTypes failingAgain(fail);
        game.fileTypes = &failingAgain;
        WriteFile(game.path, SavedGame("Q@9,10 Z@1,1"));
        const std::string text = game.ForPerson(commands);
        EXPECT_TRUE(Has(text, "--- " + ofMenu + "\n"));
        EXPECT_TRUE(Has(text, "--- " + ofOpen + "\n"));
        EXPECT_FALSE(Has(text, "vector"));
        EXPECT_TRUE(text.ends_with("starting your move from.\n> ")) << text;
        EXPECT_EQ(game.status, 0);
    }
}

}  // namespace
}  // namespace qarn
