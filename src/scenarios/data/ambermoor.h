#pragma once

#include "scenarios/scenario_data.h"

namespace qarn {

// Three crews come ashore to dig up a moor. All of side 2 starts at sea with three boats;
// Stonemantle, right by the landing place, has nobody in it at the start.
// clang-format off
inline constexpr ScenarioData ambermoor{
    .Board = {
        "222222222224400000",
        "202222222246600000",
        "222222222440000000",
        "222422443335533666",
        "222244444056663366",
        "274444400066066366",
        "777444000660666336",
        "000000006608666666",
        "000000006666000000",
        "000000006666666666",
    },
    .Roster = {{
        // Name,            Code,  Side,  X,  Y, Mob, Att, Def, Ability1, Ability2
        {"Prior Fenn",      "PF",     1, 12,  8,   3,   3,   4},
        {"Abbey Scribes",   "AS",     1, 12,  8,   3,   3,   3},
        {"Peat Cutters",    "PC",     1, 11,  6,   3,   3,   3},
        {"Sea Wardens",     "SE",     1,  4,  5,   4,   4,   4},
        {"Amber Gatherers", "AG",     1,  6,  5,   3,   3,   3},
        {"Abbey Porters",   "AP",     1, 12,  8,   4,   4,   4},
        {"Skerry Voles",    "SV",     1,  2,  2,   4,   3,   3},
        {"Moor Shrews",     "MS",     1, 13,  5,   4,   4,   4},
        {"Fir Squirrels",   "FS",     1, 13,  5,   4,   5,   5, 961, 602},
        {"Captain Loll",    "CL",     2,  9,  1,   3,   3,   3},
        {"Shovel Rats",     "SR1",    2,  9,  1,   4,   3,   3},
        {"Shovel Rats",     "SR2",    2,  6,  3,   4,   3,   3},
        {"Shovel Rats",     "SR3",    2,  6,  3,   4,   3,   3},
        {"Captain Mardle",  "CM",     2,  8,  1,   3,   4,   4},
        {"Captain Pitch",   "CP",     2,  6,  3,   3,   4,   3},
        {"Barrow Weasels",  "BW1",    2,  8,  1,   4,   3,   3},
        {"Barrow Weasels",  "BW2",    2,  8,  1,   4,   3,   3},
        {"Barrow Weasels",  "BW3",    2,  9,  1,   4,   3,   3},
        {"Boat",            "BT",     0, 12,  8},
        {"Boat",            "BT",     0,  8,  1},
        {"Boat",            "BT",     0,  9,  1},
        {"Boat",            "BT",     0,  6,  3},
        {"Boat",            "BT",     0,  4,  5},
        {"Boat",            "BT",     0, 13,  5},
    }},
    .landmarkSteps = LandmarkSteps::StonemantleAndAbbey,
    .landmarkSquares = {{2, 6}, {1, 7}, {2, 7}, {3, 7}, {12, 8}},
    .PeopleLeft = {9, 9},
    .VictoryText = {
        "They left a hundred and forty shovels. \"And nothing dug,\" said the creature who "
        "counted them, looking out over the moor, which at that hour was doing it again.",
        "\"It is here somewhere,\" said one digger, in the ninth week, to the fellow in the next "
        "hole. \"It only wants finding.\" Behind them the sun went down, and for a while neither "
        "of them could look at it.",
    },
    .Background =
        "Seen from the sea at sunset, the moor between Stonemantle and Thornmere looks like one "
        "great slab of amber. Three captains have seen it from the sea. They have come with "
        "shovels.",
};
// clang-format on

static_assert(IsSound(ambermoor));

}  // namespace qarn
