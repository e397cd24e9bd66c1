#pragma once

namespace qarn {

struct Game;

/// Opens the help page about the groups of the current scenario.
void ItemDetails(Game& game);

}  // namespace qarn
