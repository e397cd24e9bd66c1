#pragma once

#include "scenarios/scenario_data.h"

namespace qarn {

// Stonemantle is besieged from the sea while its help is still far to the east. The tern begins on
// one square with others, so of the two codes of birds it needs the one that may take wing from
// there; being the last group of the roster, it leads nobody across.
// clang-format off
inline constexpr ScenarioData cinderfell{
    .Board = {
        "222240006666330000",
        "222240006660330666",
        "222233306600036333",
        "222244330003333346",
        "222224033333036666",
        "222244000000000666",
        "222244000600130066",
        "222070006600000000",
        "220777000000000000",
        "211111111111111111",
    },
    .Roster = {{
        // Name,              Code,  Side,  X,  Y, Mob, Att, Def, Ability1, Ability2
        {"Warlord Raukel",    "WR",     2,  4,  5,   3,   6,   6},
        {"Tar Rats",          "TR1",    2,  3,  9,   3,   4,   4},
        {"Tar Rats",          "TR2",    2,  4,  1,   3,   4,   4},
        {"Tar Rats",          "TR3",    2,  4,  5,   3,   4,   4},
        {"Tar Rats",          "TR4",    2,  1, 10,   3,   4,   4},
        {"Tar Rats",          "TR5",    2,  7,  9,   3,   4,   4},
        {"Tar Rats",          "TR6",    2,  7,  9,   3,   4,   4},
        {"Torch Ferrets",     "TF",     2,  3,  9,   3,   3,   3},
        {"Castellan Ruan",    "CR",     1,  5,  9,   3,   5,   5},
        {"Shore Watch",       "SW",     1,  5,  7,   4,   4,   3},
        {"Beacon Squirrels",  "BE",     1, 10,  8,   5,   4,   4, 961, 602},
        {"Forge Hedgehogs",   "FH",     1, 12,  1,   4,   8,   6},
        {"Forge Apprentices", "FA",     1, 12,  1,   3,   5,   4},
        {"Coal Shrews",       "CS",     1, 13,  2,   4,   3,   4},
        {"Thatch Mice",       "TM",     1, 15,  5,   3,   3,   4},
        {"Slate Moles",       "SL",     1, 13,  7,   3,   5,   3},
        {"Bracken Hares",     "BH",     1, 18,  5,   4,   5,   5},
        {"Skerra the Tern",   "SK",     1,  5,  7,   3,   5,   3, 811,   0},
        {"Boat",              "BT",     0,  4,  5},
        {"Boat",              "BT",     0,  3,  9},
        {"Boat",              "BT",     0,  4,  1},
        {"Boat",              "BT",     0,  1, 10},
        {"Boat",              "BT",     0,  5,  7},
        {"Boat",              "BT",     0, 13,  2},
    }},
    .landmarkSteps = LandmarkSteps::Stonemantle,
    .landmarkSquares = {{4, 9}, {5, 8}, {5, 9}, {6, 9}},
    .PeopleLeft = {10, 8},
    .VictoryText = {
        "The tar ran out along the tide,\r\n"
        "The torches hissed, the torches died,\r\n"
        "And where the fire had meant to go\r\n"
        "A thin cold rain began to blow.\r\n"
        "Go up on Cinderfell in May:\r\n"
        "There's something green among the grey.",
        "\"They ask me why I do it,\" said the one who held the torch. \"I was cold once. I did "
        "not like it.\"",
    },
    .Background =
        "Nothing has grown on Cinderfell since the last time Stonemantle was besieged, and the "
        "warlord Raukel thinks that the rest of the coast should match. His boats lie under the "
        "walls with their holds full of tar. Help is on its way from the far side of the river, "
        "most of it on foot.",
};
// clang-format on

static_assert(IsSound(cinderfell));

}  // namespace qarn
