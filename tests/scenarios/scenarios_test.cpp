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
    EXPECT_THROW(ToldOfSide(0, 1), std::out_of_range);
}

TEST(Catalogue, ListNamesAppends) {
    std::string text = "Play: ";
    ListNames(false, text);
    EXPECT_TRUE(text.starts_with("Play: The Saltbrook, The Song of Kestrel Ford, ")) << text;
    EXPECT_TRUE(text.ends_with(", Varrowdene, and Ambermoor ")) << text;
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
    return squares.empty() ? "none" : squares;
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

// A line of landmarks.txt: code, fortresses, abbeys, their rows of the key, and the groups left.
TEST(Setup, LandmarksTheirKeyAndGroups) {
    std::string lines;
    for (int scenario = 1; scenario <= scenarioCount; ++scenario) {
        PlayedGame played{std::string(NamesOfScenario(scenario).Code)};
        const GameRecord& record = played.game.record;
        const auto left = record.bytPeopleLeft;
        lines += std::string(NamesOfScenario(scenario).Code) + " | " + SquaresOf(Fortress, record) +
                 " | " + SquaresOf(Abbey, record) + " | " + KeyRow(Fortress, played.game) + " | " +
                 KeyRow(Abbey, played.game) + " | " + std::to_string(left[1]) + "," +
                 std::to_string(left[2]) + "\n";
        CountPeople(played.game);
        EXPECT_EQ(record.bytPeopleLeft, left);
    }
    EXPECT_EQ(lines, ReadFile(QARN_TESTS_FOLDER "/scenarios/landmarks.txt"));
}

}  // namespace
}  // namespace qarn
