#pragma once

#include <vector>

#include "core/plan.h"
#include "core/position.h"

namespace qarn {

/// A turn in short: a plan without the way of its march.
struct Turn {
    PlanKind kind = PlanKind::Pass;
    bool attacks = false;       ///< of a march: its last step is a direct attack
    Square start = {};          ///< of a march, or the attackers' square
    Square before = {};         ///< of a march: the square that the last step comes from
    Square end = {};            ///< of a march: where it ends or attacks; of an attack: the target
    PeopleSet people = {};      ///< of a march: who goes
    std::uint8_t casualty = 0;  ///< as in Plan

    friend bool operator==(const Turn&, const Turn&) = default;
};

/// Lists what the side to move can do in its turn, into an empty list: every march of some of a
/// stack, with or without its boats and the cart, to each square that it reaches, the cheapest way
/// standing for all; every attack by command; and, last, to pass. Marches that end in the same
/// position are listed once. It plays fair: only its own groups act, no attack is on its own side,
/// and none comes from a square that both sides share.
void ListTurns(const Position& position, std::vector<Turn>& turns);

/// The whole plan of a turn that was listed for this position.
Plan PlanOf(const Position& position, const Turn& turn);

}  // namespace qarn
