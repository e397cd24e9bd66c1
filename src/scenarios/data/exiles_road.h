#pragma once

#include "scenarios/scenario_data.h"

namespace qarn {

// The exile walks from the mountains in the north-east to besieged Stonemantle. Everybody here is
// about three times as strong as on the other boards. The crane flies alone: a bird that led others
// across would carry whole armies over the streams that this road is fought along.
// clang-format off
inline constexpr ScenarioData exilesRoad{
    .Board = {
        "222222222206600011",
        "222222222066000001",
        "222222220666666600",
        "222222226666333606",
        "222222223333363361",
        "222222240666666333",
        "222222474011108666",
        "222220444111115566",
        "222233333333333333",
        "222555555555555566",
    },
    .Roster = {{
        // Name,              Code,  Side,  X,  Y, Mob, Att, Def, Ability1, Ability2
        {"Hethra the Exile",  "HE",     1, 18,  1,   7,  20,  10},
        {"Jorrel the Crane",  "J",      1, 12,  1,   4,  16,  15, 811,   0},
        {"Deep Moles",        "DM",     1, 11,  3,   4,  10,  16},
        {"Abbey Gatekeepers", "AG",     1, 15,  7,   5,  13,  17},
        {"Bramble Foresters", "BF",     1, 14,  5,   5,  16,  14},
        {"Rapids Otters",     "RO",     1, 13,  4,   7,  19,  10},
        {"Alder Martens",     "AM",     1, 14, 10,   6,  18,  12, 961, 602},
        {"Carr Squirrels",    "CS",     1, 11, 10,   6,  14,  16, 961, 602},
        {"Weir Shrews",       "WS",     1, 18, 10,   5,  14,  16},
        {"Castellan Brude",   "CB",     1,  8,  7,   7,  15,  15},
        {"Captain Yarrish",   "CY",     2, 14,  3,   7,  19,  11},
        {"Thornwood Stoats",  "TS",     2, 10,  4,   7,  18,  12},
        {"Bog Rats",          "BR",     2, 16,  8,   4,  13,  15},
        {"Scree Polecats",    "SP1",    2, 12,  8,   7,  18,  12},
        {"Scree Polecats",    "SP2",    2, 12,  7,   7,  18,  12},
        {"Bailiff Murk",      "BK",     2, 16,  3,   6,  15,  15},
        {"Road Reivers",      "RR1",    2, 18,  5,   5,  14,  15},
        {"Road Reivers",      "RR2",    2, 17,  4,   5,  14,  15},
        {"Road Reivers",      "RR3",    2, 18,  3,   5,  14,  15},
        {"Warlord Iskard",    "WI",     2,  6,  8,   7,  19,  13},
        {"Boat",              "BT",     0, 13,  4},
        {"Boat",              "BT",     0, 16,  8},
        {"Boat",              "BT",     0, 14,  3},
        {"Boat",              "BT",     0, 18, 10},
    }},
    .landmarkSteps = LandmarkSteps::StonemantleAndAbbey,
    .landmarkSquares = {{8, 7}, {15, 7}},
    .PeopleLeft = {10, 10},
    .VictoryText = {
        "The law said death for setting foot on the road, so the judges went out with a measuring "
        "chain to see where she had walked. \"Across the fields,\" they reported, and the clerk, "
        "who had watched her come straight up the middle, wrote it down.",
        "The road is open now from the mountains to the sea, and anyone may walk it who can pay. "
        "At the first milestone stands a list of names. It is kept up to date.",
    },
    .Background =
        "Castellan Brude sent Hethra away over a theft that she would not explain, and the "
        "sentence was death if she ever set foot on the road home. Word has reached her in the "
        "mountains that the warlord Iskard stands before Stonemantle. She has been walking since "
        "before it was light.",
};
// clang-format on

static_assert(IsSound(exilesRoad));

}  // namespace qarn
