#pragma once

#include "scenarios/scenario_data.h"

namespace qarn {

// An ocean lies between the abbey and the island fortress Ostrelle, whose five groups start without
// a boat. One bird flies for each side. The skua leads others across, but starts alone on the
// enemy's shore and has to reach its friends first; the snipe, among friends on that shore, flies
// alone.
// clang-format off
inline constexpr ScenarioData jadeCirclet{
    .Board = {
        "200222222222222222",
        "200222222222222226",
        "272222222222222266",
        "222222022222222666",
        "222222222222220666",
        "222222222122206666",
        "222222222222006666",
        "222222222220066666",
        "222222222200000086",
        "222222222000000066",
    },
    .Roster = {{
        // Name,             Code,  Side,  X,  Y, Mob, Att, Def, Ability1, Ability2
        {"Locksmith Perran", "LP",     1,  3,  8,   3,   5,   5},
        {"Jinny the Snipe",  "J",      1, 12, 10,   2,   6,   5, 811,   0},
        {"Trebuchet Moles",  "TM",     1, 14,  6,   1,  10,   7},
        {"Marooned Smiths",  "MS",     1,  7,  4,   1,   9,   7},
        {"Sloop Hedgehogs",  "SH",     1,  3,  8,   2,   7,   6},
        {"Woodland Shrews",  "WS",     1, 17,  5,   3,   5,   5},
        {"Thornmere Cooks",  "TC",     1, 18, 10,   3,   5,   6},
        {"Abbey Sailors",    "AS1",    1, 10,  6,   2,   6,   6},
        {"Abbey Sailors",    "AS2",    1, 14,  2,   2,   6,   6},
        {"Pilot Skua",       "SK",     2, 18,  2,   2,   6,   5, 811,   0},
        {"Steward Vane",     "SV",     2,  3,  1,   2,   6,   5},
        {"Galley Rats",      "GR",     2,  7,  7,   1,  10,   7},
        {"Court Ferrets",    "CF",     2,  2,  1,   3,   5,   5},
        {"Ostrelle Guards",  "OG1",    2,  2,  2,   3,   5,   6},
        {"Ostrelle Guards",  "OG2",    2,  3,  2,   3,   5,   6},
        {"Queen Velith",     "QV",     2,  2,  3,   1,   8,   7},
        {"Queen's Corsairs", "QC1",    2,  6,  9,   2,   7,   6},
        {"Queen's Corsairs", "QC2",    2,  9,  8,   2,   7,   6},
        {"Boat",             "BT",     0, 14,  2},
        {"Boat",             "BT",     0, 10,  6},
        {"Boat",             "BT",     0,  7,  7},
        {"Boat",             "BT",     0,  3,  8},
        {"Boat",             "BT",     0,  9,  8},
        {"Boat",             "BT",     0,  6,  9},
    }},
    .landmarkSteps = LandmarkSteps::OstrelleAndAbbey,
    .landmarkSquares = {{17, 9}},
    .PeopleLeft = {9, 9},
    .VictoryText = {
        "Somebody turned the Jade Circlet over at last and read what was written on the back. It "
        "hangs on its nail again behind the kitchen door, except at dinner, when it goes under "
        "the big pot so as not to mark the table.",
        "The will of Ostrelle was read aloud on every quay: \"The tide shall come in twice a day "
        "and go out twice a day, until further notice.\" So far it has obeyed.",
    },
    .Background =
        "Nobody at Thornmere can say what the Jade Circlet is for, only that it has always hung "
        "on a nail behind the kitchen door. Queen Velith of Ostrelle has heard that it commands "
        "the tides, has had it stolen, and is wearing it. Thornmere has sent its sailors, its "
        "cooks and a trebuchet to ask for it back.",
};
// clang-format on

static_assert(IsSound(jadeCirclet));

}  // namespace qarn
