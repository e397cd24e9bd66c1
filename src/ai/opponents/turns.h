#pragma once

#include <vector>

#include "core/plan.h"
#include "core/position.h"

namespace qarn {

/// Lists what the side to move can do in its turn, into an empty list: every march of some of a
/// stack, with or without its boats and the cart, to each square that it reaches, the cheapest way
/// standing for all; every attack by command; and, last, to pass. Marches that end in the same
/// position are listed once. It plays fair: only its own groups act, no attack is on its own side,
/// and none comes from a square that both sides share.
void ListTurns(const Position& position, std::vector<Plan>& turns);

}  // namespace qarn
