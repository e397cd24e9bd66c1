#pragma once

#include "core/game.h"

namespace qarn {

/// Opens the help page about the groups of the current scenario.
void ItemDetails(Game& game);

}  // namespace qarn
