#pragma once

#include "scenarios/scenario_data.h"

namespace qarn {

// The salt-makers' rising against the toll. Castle Vennick is walled in by mountains on every side,
// so it can only be stormed from rock; the relief and the corsairs both come in by sea from the
// north.
// clang-format off
inline constexpr ScenarioData saltbrook{
    .Board = {
        "222222222222555555",
        "222222222225555555",
        "222222222255555555",
        "222221222254444433",
        "222211222243333336",
        "222112222033611116",
        "222122220336617716",
        "222222203366611116",
        "222222333666611116",
        "222222066666666666",
    },
    .Roster = {{
        // Name,              Code,  Side,  X,  Y, Mob, Att, Def, Ability1, Ability2
        {"Toll-Lord Maddern", "TM",     2, 16,  7,   4,   5,   5},
        {"Toll-Lady Issel",   "TI",     2, 15,  7,   4,   5,   5},
        {"Toll Guards",       "TG1",    2, 15,  7,   3,   4,   4},
        {"Toll Guards",       "TG2",    2, 15,  7,   3,   4,   4},
        {"Toll Guards",       "TG3",    2, 16,  7,   3,   4,   4},
        {"Halberd Stoats",    "HS",     2, 16,  7,   3,   6,   4},
        {"Captain Harl",      "CH",     2, 11,  1,   3,   5,   4},
        {"Brine Corsairs",    "BC1",    2, 11,  1,   3,   3,   4},
        {"Brine Corsairs",    "BC2",    2, 10,  1,   3,   3,   4},
        {"Brine Corsairs",    "BC3",    2, 10,  1,   3,   3,   4},
        {"Ship's Carpenters", "SC",     1,  6,  1,   3,   3,   3},
        {"Shipmaster Ennis",  "SE",     1,  5,  1,   3,   4,   5},
        {"Helm Newts",        "HN",     1,  5,  1,   4,   3,   4},
        {"Deck Hedgehogs",    "DH",     1,  6,  1,   3,   4,   4},
        {"Fen Toads",         "FT",     1, 15,  3,   3,   5,   4},
        {"Brook Otters",      "BO",     1, 14,  5,   4,   5,   5},
        {"Saltpan Voles",     "SV",     1, 14,  5,   4,   5,   5},
        {"Ivy Dormice",       "ID",     1, 14,  5,   3,   4,   3, 961, 602},
        {"Salt Shrews",       "SH",     1, 14,  4,   3,   5,   4},
        {"Lamp Keeper",       "LK",     1,  5,  6,   3,   3,   3},
        {"Boat",              "BT",     0,  5,  1},
        {"Boat",              "BT",     0,  6,  1},
        {"Boat",              "BT",     0, 10,  1},
        {"Boat",              "BT",     0, 11,  1},
    }},
    .landmarkSteps = LandmarkSteps::CastleVennick,
    .landmarkSquares = {{15, 7}, {16, 7}},
    .PeopleLeft = {10, 10},
    .VictoryText = {
        "\"So who keeps the toll now?\" asked a very small salt-maker, looking up at the gate of "
        "Vennick. \"Nobody,\" said her grandmother, already at work on the hinges. \"But it will "
        "make us a good long table.\"",
        "\"Half a barrel was a kindness,\" said the castle clerk, cutting a fresh tally stick. "
        "\"From today we keep the barrel, and they may keep the brook.\"",
    },
    .Background =
        "For three winters the toll-lords of Castle Vennick have kept half of every barrel that "
        "the salt-makers roll down to the sea. This spring the salt-makers kept the barrels and "
        "burned the tally sticks. Shipmaster Ennis is sailing in to help them, with corsairs hard "
        "on her rudder.",
};
// clang-format on

static_assert(IsSound(saltbrook));

}  // namespace qarn
