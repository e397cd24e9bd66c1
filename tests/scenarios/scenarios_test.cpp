#include <gtest/gtest.h>

#include "scenarios/catalogue.h"
#include "scenarios/setup.h"
#include "support/fake_ports.h"

namespace qarn {
namespace {

TEST(Catalogue, BindsNumberCodeAndTitles) {
    for (int scenario = 1; scenario <= scenarioCount; ++scenario) {
        EXPECT_EQ(ScenarioNumber(NamesOfScenario(scenario).Code), scenario);
    }
    EXPECT_EQ(ScenarioNumber("SB"), 1);
    EXPECT_EQ(ScenarioNumber("AM"), 12);
    for (const char* other : {"hm", "HM ", "H", "", "HMX"}) EXPECT_EQ(ScenarioNumber(other), 0);
    std::string code = "as it was";
    ScenarioCode(0, code);
    ScenarioCode(13, code);
    EXPECT_EQ(code, "as it was");
    ScenarioCode(7, code);
    EXPECT_EQ(code, "HM");
    EXPECT_EQ(NamesOfScenario(2).CaptionTitle, "The Song Of Kestrel Ford");
    EXPECT_EQ(NamesOfScenario(11).CaptionTitle, "The Varrowdene");
    EXPECT_THROW(NamesOfScenario(0), std::out_of_range);
    EXPECT_THROW(DataOfScenario(13), std::out_of_range);
}

TEST(Catalogue, ListNamesAppends) {
    std::string text = "Play: ";
    ListNames(false, text);
    EXPECT_EQ(text,
              "Play: The Saltbrook, The Song of Kestrel Ford, Duskwater, The Quiet Marches, "
              "Cinderfell, Wren's Return, Hollowmere, Exile's Road, The Jade Circlet, Stonemantle, "
              "Varrowdene, and Ambermoor ");
    std::string quoted;
    ListNames(true, quoted);
    EXPECT_TRUE(quoted.starts_with("\"The Saltbrook\", \"The Song of Kestrel Ford\", "));
    EXPECT_TRUE(quoted.ends_with("\"Varrowdene\", and \"Ambermoor\" "));
}

class Setup : public testing::Test {
protected:
    void SetUpScenario(int scenario) {
        game.record = {};
        game.controls = {};
        game.record.bytScenario = static_cast<std::uint8_t>(scenario);
        SetupScenario(game);
    }
    std::string SquaresOf(Terrain code) const {
        std::string squares;
        for (std::size_t X = 1; X <= columnCount; ++X) {
            for (std::size_t Y = 1; Y <= rowCount; ++Y) {
                if (game.record.bytTerrain[X][Y] != code) continue;
                squares += "(" + std::to_string(X) + "," + std::to_string(Y) + ")";
            }
        }
        return squares;
    }
    // The row of the terrain key as a person reads it: caption, what the button says, place.
    std::string KeyRow(Terrain code) const {
        const Label& label = game.controls.lblTerrKey[code];
        const Button& button = game.controls.cmdSeeTerDet[code];
        const TerrainKindRecord& kind = game.record.TerrainKinds[code];
        EXPECT_EQ(label.Top, button.Top);
        std::string row = label.Visible ? label.Caption + " at " + std::to_string(label.Top) : "-";
        if (button.Visible) row += " ...";
        if (kind.Mobility == 0) return row;
        EXPECT_TRUE(kind.Mobility == 1 && kind.Attack == 0 && kind.DirectAttack &&
                    kind.IndirectAttack && !kind.NeedsBoat);
        return row + " " + std::to_string(kind.Defense) + " " + kind.Comments;
    }

    FakeDialogs dialogs;
    FakeRandomNumbers random;
    FakeHelp help;
    FakeSettings settings;
    FakeFileTypes fileTypes;
    Game game{
        .record = {}, .controls = {}, .ports = {dialogs, random, help, settings, fileTypes, {}}};
};

TEST_F(Setup, LandmarksAndTheirKey) {
    struct Row {
        const char *fortresses, *abbeys, *fortressKey, *abbeyKey;
    };
    const char* mantle = "Stonemantle at 2640 ... 4 1 to move and 4 for defense";
    const char* abbey = "Thornmere at 3000 ... 4 1 to move and 4 for defense";
    const char* onlyAbbey = "Thornmere at 2640 ... 4 1 to move and 4 for defense";
    const Row rows[] = {
        {"(15,7)(16,7)", "", "Castle Vennick at 2640 ... 4 1 to move and 4 defense units", "-"},
        {"", "", "- ...", "- ..."},
        {"", "(5,3)", "-", onlyAbbey},
        {"(1,9)(1,10)(2,9)(2,10)", "(7,7)(7,8)", mantle, abbey},
        {"(4,9)(5,8)(5,9)(6,9)", "", mantle, "-"},
        {"(10,9)", "(17,10)", mantle, abbey},
        {"(15,4)", "", "Gallowrock at 2640 ... 3 1 to move and 3 defense", "-"},
        {"(8,7)", "(15,7)", mantle, abbey},
        {"(2,3)", "(17,9)", "Ostrelle at 2640 ... 4 1 to move and 4 defense units", abbey},
        {"(10,6)", "(15,7)", mantle, abbey},
        {"", "(10,9)", "-", onlyAbbey},
        {"(1,7)(2,6)(2,7)(3,7)", "(12,8)", mantle, abbey},
    };
    for (int scenario = 1; scenario <= scenarioCount; ++scenario) {
        SCOPED_TRACE(NamesOfScenario(scenario).Code);
        SetUpScenario(scenario);
        EXPECT_EQ(SquaresOf(Fortress), rows[scenario - 1].fortresses);
        EXPECT_EQ(SquaresOf(Abbey), rows[scenario - 1].abbeys);
        EXPECT_EQ(KeyRow(Fortress), rows[scenario - 1].fortressKey);
        EXPECT_EQ(KeyRow(Abbey), rows[scenario - 1].abbeyKey);
    }
}

TEST_F(Setup, GroupsOfAllScenarios) {
    const char* counts[] = {"10,10", "9,9",   "10,10", "9,9",   "10,8", "10,10",
                            "9,8",   "10,10", "9,9",   "11,11", "9,9",  "9,9"};
    for (int scenario = 1; scenario <= scenarioCount; ++scenario) {
        SetUpScenario(scenario);
        std::array<int, 3> sides{};
        for (std::size_t i = 1; i <= peopleCount; ++i) {
            const PeopleRecord& people = game.record.People[i];
            ++sides.at(people.Side);
            EXPECT_EQ(people.Code.size(), 3u);
        }
        EXPECT_EQ(std::to_string(sides[1]) + "," + std::to_string(sides[2]), counts[scenario - 1]);
        EXPECT_EQ(sides[1], game.record.bytPeopleLeft[1]);
        EXPECT_EQ(sides[2], game.record.bytPeopleLeft[2]);
    }
}

TEST_F(Setup, HollowmereAsItStarts) {
    SetUpScenario(7);
    const GameRecord& record = game.record;
    EXPECT_EQ(record.bytTerrain[1][2], Plain);
    EXPECT_EQ(record.bytTerrain[18][10], Plain);
    EXPECT_EQ(record.bytTerrain[14][1], Sand);
    const SquareList gallowrock = LocationOfPeople(record, 15, 4);
    EXPECT_EQ(std::vector<int>(gallowrock.People().begin(), gallowrock.People().end()),
              (std::vector<int>{2, 7, 24}));
    EXPECT_EQ(record.People[10].Code, "ZA1");
    EXPECT_EQ(record.People[3].Ability1, 961);
    EXPECT_EQ(record.People[18].Defense, 4);
}

TEST_F(Setup, AnUnknownScenarioLeavesTheRecordUntouched) {
    for (const int scenario : {0, 13}) {
        SetUpScenario(scenario);
        EXPECT_EQ(game.record.People[1].Name, "");
        EXPECT_EQ(game.record.bytPeopleLeft[1], 0);
        EXPECT_EQ(SquaresOf(Mountain), "");
        EXPECT_EQ(KeyRow(Fortress), "- ...");
    }
}

}  // namespace
}  // namespace qarn
