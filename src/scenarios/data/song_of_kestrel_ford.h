#pragma once

#include "scenarios/scenario_data.h"

namespace qarn {

// A hunt through the islands for a song that is also a chart. The board is almost all ocean and has
// no landmark; six boats serve eighteen groups, and some of those sit on islands without one.
// clang-format off
inline constexpr ScenarioData songOfKestrelFord{
    .Board = {
        "222222222222224444",
        "222222222222222244",
        "226622222222211244",
        "266662222662222222",
        "222222222662211222",
        "222222222222666622",
        "225552222222222222",
        "252222222222226662",
        "222552222222226666",
        "255222222222222222",
    },
    .Roster = {{
        // Name,           Code,  Side,  X,  Y, Mob, Att, Def, Ability1, Ability2
        {"Isle Shrews",    "IS",     1, 11,  4,   4,   5,   5},
        {"Tamsin Reed",    "TR",     1,  5,  3,   5,   5,   5},
        {"Verse Keeper",   "VK",     1,  8,  1,   3,   4,   5},
        {"Raft Voles",     "RV",     1,  9,  8,   3,   7,   6},
        {"Ford Hedgehogs", "FH",     1,  9,  8,   4,   5,   7},
        {"Dune Moles",     "DM",     1, 18,  2,   4,   5,   6},
        {"Cliff Martens",  "CM",     1, 15,  3,   4,   7,   7, 961, 602},
        {"Strand Rabbits", "SR",     1, 18,  1,   4,   5,   4},
        {"Hazel Mice",     "HZ",     1, 15,  6,   3,   4,   4},
        {"Reef Reavers",   "RR1",    2, 14,  4,   3,   5,   4},
        {"Reef Reavers",   "RR2",    2, 17,  8,   3,   5,   4},
        {"Mate Cobble",    "MC",     2, 16,  9,   3,   5,   5},
        {"Captain Dowle",  "CD",     2, 14,  4,   3,   4,   5},
        {"Mire Stoats",    "MS1",    2,  3,  8,   4,   6,   5},
        {"Mire Stoats",    "MS2",    2,  3,  4,   4,   6,   5},
        {"Mire Stoats",    "MS3",    2,  8, 10,   4,   6,   5},
        {"Mire Stoats",    "MS4",    2,  8, 10,   4,   6,   5},
        {"Warlord Threll", "WT",     2,  3,  8,   5,   7,   6},
        {"Boat",           "BT",     0,  8,  1},
        {"Boat",           "BT",     0,  5,  3},
        {"Boat",           "BT",     0, 14,  4},
        {"Boat",           "BT",     0,  3,  8},
        {"Boat",           "BT",     0,  9,  8},
        {"Boat",           "BT",     0,  8, 10},
    }},
    .landmarkSteps = LandmarkSteps::None,
    .landmarkSquares = {},
    .PeopleLeft = {9, 9},
    .VictoryText = {
        "Leave Alder Holm on the starboard hand\r\n"
        "And the Sisters dark astern;\r\n"
        "Where the eddy curls on the hidden sand\r\n"
        "Is the place for a boat to turn.\r\n"
        "They had twice our oars and the wind beside\r\n"
        "And two of the verses known;\r\n"
        "They sang them both on the falling tide,\r\n"
        "And the third verse is a stone.\r\n"
        "- newest verse of the Song of Kestrel Ford",
        "We have the verses, all in rows,\r\n"
        "We have the chorus too,\r\n"
        "And every rock the channel knows\r\n"
        "We know as well as you.\r\n"
        "So bar the door and bank the light\r\n"
        "And hark along the shore:\r\n"
        "The song you hear go by tonight\r\n"
        "Was never ours before.",
    },
    .Background =
        "Each verse of the Song of Kestrel Ford names an island and the rock that hides beside "
        "it, so whoever has the whole song can sail the sound by night. The warlord Threll has "
        "bought one verse, has beaten another out of a singer, and wants the rest. The folk of "
        "the Ford have taken to their boats, humming with their mouths shut.",
};
// clang-format on

static_assert(IsSound(songOfKestrelFord));

}  // namespace qarn
