#pragma once

#include <functional>

#include "core/game.h"

namespace qarn {

/// Runs the handler of one event of the game window: the one gate through which a hand, a script,
/// the timer and the loader all go. A sum that passes its eight bits, or any other failure, is told
/// in a box, and record and controls are as they were before the event. When the handler ends the
/// program, blnEnded is set.
void RunEvent(Game& game, const std::function<void(Game&)>& handler);

}  // namespace qarn
