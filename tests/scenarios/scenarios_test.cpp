#include <gtest/gtest.h>

#include "rules/casualties.h"
#include "scenarios/catalogue.h"
#include "scenarios/setup.h"
#include "scenarios/sides_told.h"
#include "support/played_game.h"

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

TEST(Catalogue, TellsWhatASideIs) {
    EXPECT_EQ(ToldOfSide(1, 1),
              "Goodbeasts (circles): 10 groups, the strongest Brook Otters; 41 attack, 40 defense, "
              "in the north.");
    EXPECT_EQ(ToldOfSide(1, 2),
              "Badbeasts (squares): 10 groups, the strongest Toll-Lord Maddern; 42 attack, 42 "
              "defense, in the east.");
    EXPECT_EQ(ToldOfSide(3, 1).substr(ToldOfSide(3, 1).rfind(", ")), ", all over the board.");
    EXPECT_THROW(ToldOfSide(0, 1), std::out_of_range);
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

std::string SquaresOf(Terrain code, const GameRecord& record) {
    std::string squares;
    for (std::size_t X = 1; X <= columnCount; ++X) {
        for (std::size_t Y = 1; Y <= rowCount; ++Y) {
            if (record.bytTerrain[X][Y] != code) continue;
            squares += "(" + std::to_string(X) + "," + std::to_string(Y) + ")";
        }
    }
    return squares;
}

// The row of the terrain key as a person reads it: caption, place, and what the button shows.
std::string KeyRow(Terrain code, const Game& game) {
    const KeyLabel& label = game.controls.lblTerrKey[code];
    const Button& button = game.controls.cmdSeeTerDet[code];
    const TerrainKindRecord& kind = game.record.TerrainKinds[code];
    EXPECT_EQ(label.Top, button.Top);
    const std::string caption(label.Caption);
    std::string row = label.Visible ? caption + " at " + std::to_string(label.Top) : "-";
    if (button.Visible) row += " ...";
    if (kind.Mobility == 0) return row;
    EXPECT_TRUE(kind.Mobility == 1 && kind.Attack == 0 && kind.DirectAttack &&
                kind.IndirectAttack && !kind.NeedsBoat);
    return row + " " + std::to_string(kind.Defense) + " " + std::string(kind.Comments);
}

TEST(Setup, LandmarksTheirKeyAndGroups) {
    struct Row {
        const char *fortresses, *abbeys, *fortressKey, *abbeyKey;
    };
    const char* mantle = "Stonemantle at 2640 ... 4 1 to move and 4 for defense";
    const char* abbey = "Thornmere at 3000 ... 4 1 to move and 4 for defense";
    const char* onlyAbbey = "Thornmere at 2640 ... 4 1 to move and 4 for defense";
    const Row rows[] = {
        {"(15,7)(16,7)", "", "Castle Vennick at 2640 ... 4 1 to move and 4 defense units", "-"},
        {"", "", "-", "-"},
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
    const char* counts[] = {"10,10", "9,9",   "10,10", "9,9",   "10,8", "10,10",
                            "9,8",   "10,10", "9,9",   "11,11", "9,9",  "9,9"};
    for (std::size_t i = 0; i < scenarioCount; ++i) {
        const std::string code(NamesOfScenario(static_cast<int>(i) + 1).Code);
        SCOPED_TRACE(code);
        PlayedGame played(code);
        const GameRecord& record = played.game.record;
        EXPECT_EQ(SquaresOf(Fortress, record), rows[i].fortresses);
        EXPECT_EQ(SquaresOf(Abbey, record), rows[i].abbeys);
        EXPECT_EQ(KeyRow(Fortress, played.game), rows[i].fortressKey);
        EXPECT_EQ(KeyRow(Abbey, played.game), rows[i].abbeyKey);
        for (int recount = 1; recount <= 2; ++recount) {
            EXPECT_EQ(std::to_string(record.bytPeopleLeft[1]) + "," +
                          std::to_string(record.bytPeopleLeft[2]),
                      counts[i]);
            CountPeople(played.game);
        }
    }
}

}  // namespace
}  // namespace qarn
