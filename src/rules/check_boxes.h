#pragma once

#include <cstdint>
#include <vector>

namespace qarn {

struct Controls;
struct Game;
struct SquareList;

/// Shows the first 11 of the listed people in the check boxes, enabled and with their codes, all
/// ticked or none; hides the other boxes; shows cmdDoneSel.
void ListInCheckBoxes(Game& game, const SquareList& people, bool ticked);

/// The people whose boxes are on screen and ticked, in the order of the boxes.
std::vector<std::uint8_t> TickedPeople(const Game& game);

/// Hides all check boxes; what is ticked stays so.
void HideCheckBoxes(Controls& controls);

}  // namespace qarn
