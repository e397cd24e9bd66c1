#pragma once

#include <cstdint>
#include <vector>

#include "core/people_set.h"

namespace qarn {

struct Controls;
struct Game;

/// Shows people, 11 at most, in the check boxes, enabled and with their codes, all
/// ticked or none; hides the other boxes; shows cmdDoneSel.
void ListInCheckBoxes(Game& game, PeopleSet people, bool ticked);

/// The people whose boxes are on screen and ticked, in the order of the boxes.
std::vector<std::uint8_t> TickedPeople(const Game& game);

/// Hides all check boxes; what is ticked stays so.
void HideCheckBoxes(Controls& controls);

}  // namespace qarn
