#pragma once

#include "scenarios/scenario_data.h"

namespace qarn {

// The slaves of Gallowrock have walked out, and the Warlord wants them back. Gallowrock is the one
// fortress that can be burned down, and this is the one board with a cart.
// clang-format off
inline constexpr ScenarioData hollowmere{
    .Board = {
        "600003666555542222",
        "006033666555544222",
        "000036666665544222",
        "060031666115547422",
        "000033111105544432",
        "006003606605511134",
        "400333300665011330",
        "440360306660033300",
        "440360333333330000",
        "440333330000000000",
    },
    .Roster = {{
        // Name,                    Code,  Side,  X,  Y, Mob, Att, Def, Ability1, Ability2
        {"Hero",                    "Q",      1, 14,  7,   3,   5,   5},
        {"Warlord",                 "WA",     2, 15,  4,   3,   3,   3},
        {"Treetop Squirrels",       "TS",     1,  9,  5,   5,   8,   9, 961, 602},
        {"Little Shrews",           "LS",     1, 10,  2,   3,   7,   6},
        {"Shrews",                  "S",      1,  3,  7,   4,   7,   6},
        {"Warlord's Slaves",        "WS",     1, 14,  7,   4,   8,   5},
        {"Warlords's Army",         "WA1",    2, 15,  4,   3,   5,   5},
        {"Warlords's Army",         "WA2",    2, 11,  5,   3,   5,   5},
        {"Corsair",                 "Z",      2, 17,  2,   3,   3,   3},
        {"Corsair's Army",          "ZA1",    2,  5,  1,   3,   4,   4},
        {"Corsair's Army",          "ZA2",    2, 11, 10,   3,   4,   4},
        {"Sentinel",                "J",      1, 10,  1,   3,   3,   5, 811,   0},
        {"Skyfeather",              "SK",     1,  8,  5,   3,   3,   5, 811,   0},
        {"Warlord's Misc. Helpers", "WA3",    2, 11,  5,   3,   4,   4},
        {"Corsair's Misc. Helpers", "ZA3",    2, 17,  2,   3,   6,   6},
        {"Ashbrand",                "V",      1,  8,  2,   4,   4,   4, 961, 602},
        {"Hero's Friends",          "HF",     1,  8,  8,   3,   2,   2},
        {"Cart",                    "CT",     0,  6,  9,   6,   0,   4},
        {"Boat",                    "BT",     0,  5,  1},
        {"Boat",                    "BT",     0, 17,  2},
        {"Boat",                    "BT",     0, 17,  2},
        {"Boat",                    "BT",     0,  3,  7},
        {"Boat",                    "BT",     0, 11, 10},
        {"Boat",                    "BT",     0, 15,  4},
    }},
    .landmarkSteps = LandmarkSteps::Gallowrock,
    .landmarkSquares = {{15, 4}},
    .PeopleLeft = {9, 8},
    .VictoryText = {
        "\"Well, fare you well then, bor, and mind how you go. That owd rock don't fright nobody "
        "now; that just sit there in the wet like the rest on us. Do you ever want turnips, you "
        "know where we are, and there 'on't be no charge.\"",
        "Gallowrock! Learn to say it on your knees, for tomorrow I start building another!",
    },
    .Background =
        "The Hero came to Gallowrock to sell turnips, and left by the front gate with all the "
        "Warlord's slaves walking behind. The Warlord has already been paid for them, and the "
        "Corsair who paid is waiting off the shore. From the treetops, the river and the sky, "
        "word comes back: hold on.",
};
// clang-format on

static_assert(IsSound(hollowmere));

}  // namespace qarn
