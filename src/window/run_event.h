#pragma once

#include <functional>
#include <string_view>

namespace qarn {

struct Game;

/// Runs the handler of one event of the game window: the one gate through which a hand, a script,
/// the timer and the loader all go, each event once. Whatever the handler throws is reported in a
/// box, and record and controls are as they were before the event: a PlayerError by its text,
/// anything else as an internal error in the event called `name`, such as "cmdMove_Click". Gives
/// false then. `happenings` are those of this event; a failed one leaves none. When the handler
/// ends the program, blnEnded is set. An event that changes nothing takes no memory.
bool RunEvent(Game& game, std::string_view name, const std::function<void(Game&)>& handler);

}  // namespace qarn
