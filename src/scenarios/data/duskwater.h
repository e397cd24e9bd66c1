#pragma once

#include "scenarios/scenario_data.h"

namespace qarn {

// Raiders come up the river towards the abbey, and some are already in the woods behind it. The
// woodlanders start scattered over the whole board and have to find each other first.
// clang-format off
inline constexpr ScenarioData duskwater{
    .Board = {
        "666666666602222222",
        "666666666600030022",
        "666686666660030000",
        "666666666066330000",
        "666666666663311111",
        "666633333333110033",
        "666330011111106331",
        "003304100000063310",
        "000004116666633100",
        "000004113333331000",
    },
    .Roster = {{
        // Name,             Code,  Side,  X,  Y, Mob, Att, Def, Ability1, Ability2
        {"Prioress Yarrow",  "PY",     1,  5,  3,   2,   3,   4},
        {"Otter Ferrymen",   "OF",     1,  5,  8,   4,   6,   6},
        {"Lost Pilgrims",    "LP",     1, 13,  6,   3,   2,   3},
        {"Root Hermit",      "RH",     1,  2,  2,   2,   2,   4},
        {"Lantern Bearers",  "LB",     1,  4,  6,   3,   4,   4},
        {"Quarry Hedgehogs", "QH",     1, 10,  8,   4,   7,   6},
        {"Charcoal Burners", "CB",     1,  1,  1,   2,   3,   5},
        {"River Shrews",     "RS",     1, 13,  3,   3,   6,   4},
        {"Eel Fishers",      "EF",     1, 18,  8,   3,   5,   4},
        {"Pine Squirrels",   "PS",     1, 15,  7,   3,   3,   4, 961, 602},
        {"Nib the Spy",      "NS",     2,  3,  3,   3,   4,   4},
        {"Ford Robbers",     "FR",     2,  3,  7,   3,   5,   4},
        {"Captain Snuff",    "CS",     2, 18,  1,   4,   6,   5},
        {"Dusk Raiders",     "DR1",    2, 18,  4,   3,   5,   6},
        {"Dusk Raiders",     "DR2",    2, 10,  1,   3,   5,   6},
        {"Dusk Raiders",     "DR3",    2, 10,  4,   3,   5,   6},
        {"Dusk Raiders",     "DR4",    2, 18,  5,   3,   5,   6},
        {"Wood Weasels",     "WW1",    2,  7,  1,   3,   4,   5},
        {"Wood Weasels",     "WW2",    2,  6,  5,   3,   4,   5},
        {"Hill Bandits",     "HB",     2, 17,  9,   4,   5,   5},
        {"Boat",             "BT",     0, 10,  1},
        {"Boat",             "BT",     0, 18,  1},
        {"Boat",             "BT",     0, 18,  8},
        {"Boat",             "BT",     0, 13,  3},
    }},
    .landmarkSteps = LandmarkSteps::Abbey,
    .landmarkSquares = {{5, 3}},
    .PeopleLeft = {10, 10},
    .VictoryText = {
        "They set the lanterns on the water again the next night, one for every friend and, after "
        "some argument, one for every enemy. \"It is all the same river,\" said the oldest "
        "creature there, and would not say more.",
        "\"That is better,\" said a voice in the dark on the abbey steps. \"Now somebody find me "
        "the cellar. And then, I suppose, somebody had better find me a light.\"",
    },
    .Background =
        "Every autumn Thornmere floats a lantern down the Duskwater for each friend that the year "
        "has taken. This autumn the lights went out one by one, beginning at the sea. Captain "
        "Snuff is rowing up the river, and he does not care to be looked at.",
};
// clang-format on

static_assert(IsSound(duskwater));

}  // namespace qarn
