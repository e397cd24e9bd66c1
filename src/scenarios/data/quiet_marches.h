#pragma once

#include "scenarios/scenario_data.h"

namespace qarn {

// A silent army lands in the south-east and crosses the borderland to Stonemantle and the abbey.
// The first Boat really has strengths of its own: they count into the sums of the square it stands
// on.
// clang-format off
inline constexpr ScenarioData quietMarches{
    .Board = {
        "666666666000000000",
        "666666666000060000",
        "333333336666000000",
        "666666633666666666",
        "666666663336666633",
        "066666666536333336",
        "000000866633366663",
        "000010866666633446",
        "770000066663334222",
        "770000066663042222",
    },
    .Roster = {{
        // Name,                Code,  Side,  X,  Y, Mob, Att, Def, Ability1, Ability2
        {"Lord Hush",           "LH",     2, 15,  9,   3,   5,   5},
        {"Felt-Foot Rats",      "FF1",    2, 15,  9,   3,   5,   4},
        {"Felt-Foot Rats",      "FF2",    2, 14,  8,   3,   5,   4},
        {"Felt-Foot Rats",      "FF3",    2, 14,  8,   3,   5,   4},
        {"Felt-Foot Rats",      "FF4",    2,  9,  7,   3,   5,   4},
        {"Felt-Foot Rats",      "FF5",    2, 18,  8,   3,   5,   4},
        {"Felt-Foot Rats",      "FF6",    2, 18,  8,   3,   5,   4},
        {"Felt-Foot Rats",      "FF7",    2, 16,  8,   3,   5,   4},
        {"Felt-Foot Rats",      "FF8",    2, 16,  8,   3,   5,   4},
        {"Castellan Aske",      "CA",     1,  4,  8,   5,   8,   7},
        {"Hill Watchers",       "HW",     1, 14,  2,   4,   4,   4},
        {"Reed Shrews",         "RS",     1,  7,  3,   4,   4,   3},
        {"Withy Voles",         "WV",     1,  9,  5,   3,   4,   3},
        {"Barge Moles",         "BG",     1,  9,  4,   3,   3,   4},
        {"Thornmere Novices",   "TN",     1,  7,  7,   4,   3,   3},
        {"Stonemantle Wardens", "SW1",    1,  2,  9,   4,   6,   6},
        {"Stonemantle Wardens", "SW2",    1,  3,  9,   8,   6,   6},
        {"Stonemantle Wardens", "SW3",    1,  6,  8,   4,   6,   6},
        {"Boat",                "BT",     0, 15,  9,   3,   5,   4},
        {"Boat",                "BT",     0, 16,  8},
        {"Boat",                "BT",     0, 14,  8},
        {"Boat",                "BT",     0,  7,  3},
        {"Boat",                "BT",     0,  9,  4},
        {"Boat",                "BT",     0,  9,  5},
    }},
    .landmarkSteps = LandmarkSteps::StonemantleAndAbbey,
    .landmarkSquares = {{1, 9}, {1, 10}, {2, 9}, {2, 10}, {7, 7}, {7, 8}},
    .PeopleLeft = {9, 9},
    .VictoryText = {
        "\"Was that the war?\" asked an old vole, opening one shutter. \"Then do make a noise "
        "about it. We have been listening to nothing for a week, and nobody has slept.\"",
        "No trumpet was blown and no flag went up. In the morning there was felt hung out to dry "
        "on the walls of Stonemantle, and along the whole length of the Marches nobody wished "
        "anybody good day.",
    },
    .Background =
        "Nothing has happened in the Quiet Marches for a hundred years, and the wardens of "
        "Stonemantle have come to take the credit for it. Now Lord Hush has landed with eight "
        "companies of rats who wear felt on their feet and march only in the dark. The first "
        "warning is that the frogs have stopped.",
};
// clang-format on

static_assert(IsSound(quietMarches));

}  // namespace qarn
