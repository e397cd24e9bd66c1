#pragma once

#include "scenarios/scenario_data.h"

namespace qarn {

// Wren and her pursuers start in the far north-west with the whole ocean to cross, and nobody on
// this board is quick: a single step into the forest is more than many a group can afford.
// clang-format off
inline constexpr ScenarioData wrensReturn{
    .Board = {
        "222222222222224446",
        "222222222222244466",
        "222222222224444666",
        "222222222244466666",
        "222222222444466666",
        "222222222443336666",
        "222222222333133666",
        "222222222400103666",
        "222222224701003366",
        "222222244001000086",
    },
    .Roster = {{
        // Name,            Code, Side,  X,  Y, Mob, Att, Def, Ability1, Ability2
        {"Wren",            "W",     1,  3,  1,   1,   6,   6},
        {"Prior Bartlow",   "PB",    1, 17, 10,   1,   3,   3},
        {"Gleaner Mice",    "GM",    1, 13,  9,   1,   3,   3},
        {"Dune Hedgehogs",  "DH",    1, 11,  6,   2,   5,   6},
        {"Wall Builders",   "WB",    1, 12,  4,   1,   4,   7},
        {"Harbour Wardens", "HW",    1, 10,  9,   3,   5,   3},
        {"Wren's Oarmates", "WO",    1,  3,  1,   2,   4,   4},
        {"Slinger Shrews",  "SH",    1, 16,  5,   2,   6,   3},
        {"Jarrow the Jay",  "J",     1, 18,  5,   2,   6,   4, 811,   0},
        {"Orchard Voles",   "OV",    1, 18,  9,   2,   4,   5},
        {"Ravel's Rowers",  "RR",    2,  1,  3,   1,   4,   4},
        {"Warlord Ketter",  "WK",    2, 16,  8,   2,   6,   6},
        {"Wreckers",        "WR",    2, 14,  1,   1,   5,   4},
        {"Scavengers",      "SC",    2, 16,  1,   2,   3,   3},
        {"Captain Ravel",   "CR",    2,  1,  3,   3,   7,   5},
        {"Ketter's Axes",   "KA",    2, 17,  8,   1,   6,   6},
        {"Pass Robbers",    "PR",    2, 13,  7,   2,   4,   3},
        {"Sluice Rats",     "SL",    2, 13,  6,   1,   4,   5},
        {"Siege Ferrets",   "SF",    2,  8, 10,   2,   4,   5},
        {"Sapper Stoats",   "SP",    2, 10, 10,   2,   3,   4},
        {"Boat",            "BT",    0,  1,  3},
        {"Boat",            "BT",    0, 14,  1},
        {"Boat",            "BT",    0, 10,  9},
        {"Boat",            "BT",    0,  3,  1},
    }},
    .landmarkSteps = LandmarkSteps::StonemantleAndAbbey,
    .landmarkSquares = {{10, 9}, {17, 10}},
    .PeopleLeft = {10, 10},
    .VictoryText = {
        "Nobody could remember what the quarrel had been about. They raised the chain together, "
        "green with nine years' weed, and agreed that it had probably been about the chain.",
        "\"So that is the key,\" said the corsairs, passing it round; it was smaller than they "
        "had thought. Then they dropped it into the harbour after the chain, and made fast at the "
        "best berth.",
    },
    .Background =
        "Nine years ago Wren quarrelled with everybody in Stonemantle and rowed away with the key "
        "to the harbour chain in her pocket. The chain has lain on the sea bed ever since, and "
        "every corsair on the coast has sailed in over it at least once. Now she is on her way "
        "home with the key, and Captain Ravel is close behind.",
};
// clang-format on

static_assert(IsSound(wrensReturn));

}  // namespace qarn
