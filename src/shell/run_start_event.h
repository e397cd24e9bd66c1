#pragma once

#include <functional>
#include <string>

#include "shell/start_up.h"
#include "shell/start_window.h"

namespace qarn {

/// Runs the handler of one event of the start window; `name` is the event's ("cmdNew_Click"). When
/// it fails, the window is as it was before the event, and a box says why: a PlayerError in its
/// own words, anything else as an internal error of that event.
void RunEvent(StartWindow& window, const std::string& name,
              const std::function<void(StartWindow&)>& handler);

/// The same for the start-up window. One that fails before it is on screen gives way to the start
/// window, so that the program goes on.
void RunEvent(StartUpWindow& window, const std::string& name,
              const std::function<void(StartUpWindow&)>& handler);

}  // namespace qarn
