#pragma once

#include "scenarios/scenario_data.h"

namespace qarn {

// Two corsair captains race each other to the abbey from one shore, each with a crew; the third
// party to the bet is already upstream, alone and stronger than either.
// clang-format off
inline constexpr ScenarioData varrowdene{
    .Board = {
        "222466600000300000",
        "224466600003311111",
        "224666600003001133",
        "233333303303003336",
        "244666606333333666",
        "244066600636666666",
        "244000000633333333",
        "244000000666666666",
        "244000000866666666",
        "440000000666666666",
    },
    .Roster = {{
        // Name,             Code,  Side,  X,  Y, Mob, Att, Def, Ability1, Ability2
        {"Captain Rusk",     "CR",     2,  2,  5,   5,   5,   4},
        {"Rusk's Crew",      "RC1",    2,  2,  5,   3,   3,   3},
        {"Rusk's Crew",      "RC2",    2,  7,  8,   3,   3,   3},
        {"Rusk's Crew",      "RC3",    2,  7,  8,   3,   3,   3},
        {"The Stakeholder",  "TS",     2, 11,  5,   4,   7,   7},
        {"Captain Ibbot",    "CI",     2,  2,  7,   5,   5,   4},
        {"Ibbot's Crew",     "IC1",    2,  2,  7,   3,   4,   3},
        {"Ibbot's Crew",     "IC2",    2,  1, 10,   3,   4,   3},
        {"Ibbot's Crew",     "IC3",    2,  1, 10,   3,   4,   3},
        {"Prioress Odell",   "PO",     1, 10,  9,   4,   4,   4},
        {"Dene Shrews",      "DS",     1, 17,  9,   3,   4,   3},
        {"Drover Calder",    "DC",     1, 13,  4,   5,   7,   6},
        {"Ferry Voles",      "FV",     1,  7,  4,   4,   5,   4},
        {"Varrow Squirrels", "VS",     1, 17,  9,   4,   4,   4, 961, 602},
        {"Withy Cutters",    "WY",     1,  9,  3,   3,   3,   4},
        {"Crag Moles",       "CM",     1, 14,  2,   3,   4,   3},
        {"Millrace Otters",  "MO",     1, 14,  5,   4,   4,   3},
        {"Infirmary Mice",   "IM",     1, 10,  9,   3,   3,   3},
        {"Boat",             "BT",     0,  1, 10},
        {"Boat",             "BT",     0,  2,  5},
        {"Boat",             "BT",     0,  7,  4},
        {"Boat",             "BT",     0,  9,  3},
        {"Boat",             "BT",     0, 11,  5},
        {"Boat",             "BT",     0, 14,  5},
    }},
    .landmarkSteps = LandmarkSteps::Abbey,
    .landmarkSquares = {{10, 9}},
    .PeopleLeft = {9, 9},
    .VictoryText = {
        "Two captains laid a ship against a ship\r\n"
        "On who would be the first to dine with us.\r\n"
        "We heard of it, and bit a trembling lip,\r\n"
        "And counted forks, and tried to make no fuss.\r\n"
        "They came by weir and willow, sand and stone,\r\n"
        "With knives, as though we kept none on the shelf,\r\n"
        "And each had come to eat the dene alone,\r\n"
        "And neither passed a dish but to himself.\r\n"
        "The dene is calm tonight, the water clear,\r\n"
        "The pears are picked, the loaf is on the sill,\r\n"
        "And both the ships they wagered now lie here\r\n"
        "With abbey washing on the yardarms still.\r\n"
        "Come hungry, stranger, come by any door:\r\n"
        "We have the plates. We always lay one more.\r\n"
        "- found in the accounts of Thornmere, between Candles and Coal",
        "There was some dispute over who had sat down first, and they settled it in the way they "
        "settle things. Two ships are for sale. Apply at the abbey.",
    },
    .Background =
        "Captain Rusk and Captain Ibbot have each bet a ship on being the first to eat supper in "
        "the abbey of Thornmere. They have landed in the Varrowdene an hour apart, and the "
        "Stakeholder has gone ahead up the river to see fair play. Nobody has told the abbey how "
        "many to lay for.",
};
// clang-format on

static_assert(IsSound(varrowdene));

}  // namespace qarn
