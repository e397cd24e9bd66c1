#pragma once

namespace qarn {

/// What follows when an event of one of the windows around the game is over.
enum class NextWindow {
    Same,   ///< the window stays open
    Start,  ///< it closes, and the start window opens
    Game,   ///< it closes, and the game window opens on strGamePath
    None,   ///< the program ends
};

}  // namespace qarn
