#pragma once

#include "scenarios/scenario_data.h"

namespace qarn {

// A race for an empty fortress: nobody holds Stonemantle, or the abbey, at the start. Three birds
// share two codes. The plovers, first of the flying groups, can lead the hermit off the island in
// the tarn; the jackdaws fly alone; the rook, with one unit to spend, could cross no water anyway.
// clang-format off
inline constexpr ScenarioData stonemantle{
    .Board = {
        "222222222444660000",
        "222222222444600111",
        "222222224440600011",
        "222222444000606000",
        "222224440001600000",
        "222244400701666666",
        "222444000001008626",
        "224440000000666222",
        "244400000006662202",
        "444000000006666222",
    },
    .Roster = {{
        // Name,              Code,  Side,  X,  Y, Mob, Att, Def, Ability1, Ability2
        {"Thornmere Elders",  "TE",     1, 16,  7,   1,   2,   2},
        {"Skerry Plovers",    "SK",     1, 18,  3,   3,   4,   5, 811,   0},
        {"Tarn Hermit",       "TH",     1, 17,  9,   3,   5,   5},
        {"Jackdaw Watch",     "J",      1, 17,  2,   2,   4,   4, 811,   0},
        {"Gate Wardens",      "GW",     1,  9,  6,   2,   4,   4},
        {"Castellan Merrol",  "CM",     1,  7,  5,   4,   6,   6},
        {"Shingle Hedgehogs", "SH",     1, 11,  1,   3,   5,   6},
        {"Lake Shrews",       "LS",     1, 18,  6,   2,   4,   3},
        {"Beekeepers",        "BK",     1, 15, 10,   2,   2,   2},
        {"Mushroom Pickers",  "MP",     1, 13,  9,   1,   2,   2},
        {"Wagoner Moles",     "WM",     1, 14,  5,   1,   2,   3},
        {"Lame Rook",         "LR",     2, 15,  4,   1,   2,   2, 811,   0},
        {"Rag-Banner Army",   "RB1",    2,  8,  4,   2,   4,   5},
        {"Rag-Banner Army",   "RB2",    2, 13,  5,   2,   4,   5},
        {"Rag-Banner Army",   "RB3",    2, 12,  7,   2,   4,   4},
        {"Rag-Banner Army",   "RB4",    2,  2,  9,   2,   4,   4},
        {"Gant's Champion",   "GC",     2, 10,  3,   3,   5,   6},
        {"Hired Corsairs",    "HC",     2,  3,  3,   3,   5,   2},
        {"Camp Cooks",        "CC",     2,  8,  5,   1,   2,   3},
        {"Warlord Gant",      "WG",     2,  6,  6,   4,   6,   6},
        {"Sneak Weasels",     "SW",     2, 18,  7,   3,   2,   3},
        {"Baggage Rats",      "BR",     2,  5,  7,   1,   2,   2},
        {"Boat",              "BT",     0,  3,  3},
        {"Boat",              "BT",     0, 18,  6},
    }},
    .landmarkSteps = LandmarkSteps::StonemantleAndAbbey,
    .landmarkSquares = {{10, 6}, {15, 7}},
    .PeopleLeft = {11, 11},
    .VictoryText = {
        "The gate of Stonemantle is shut and the fires are lit. Next to the latch there hangs a "
        "slate now, where whoever goes out last must sign. The first entry just says \"Sorry.\"",
        "Left, right, the gate was wide,\r\n"
        "The hearth was cold and bare;\r\n"
        "We wiped our feet and went inside,\r\n"
        "For nobody was there.\r\n"
        "Left, right, the rags are hung,\r\n"
        "The kettle's on the chain,\r\n"
        "And once this marching song is sung\r\n"
        "We shall not march again.",
    },
    .Background =
        "The wardens of Stonemantle marched out to meet an army that was not there, and left the "
        "gate standing open so as to be home the sooner. Now they know where the army went. Both "
        "sides are running for the same cold hearth, and whoever shuts the gate first may keep "
        "it.",
};
// clang-format on

static_assert(IsSound(stonemantle));

}  // namespace qarn
