#pragma once

#include <string>
#include <string_view>

#include "core/game.h"

namespace qarn {

/// What the status line asks for while a move has no starting square yet.
inline const std::string pickStart = "\nSelect the square you will be starting your move from.";

/// Shows a text on the status line.
inline void Status(Game& game, std::string_view text) { game.controls.lblStatus.Caption = text; }

}  // namespace qarn
