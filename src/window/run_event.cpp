#include "window/run_event.h"

#include <exception>

namespace qarn {

void RunEvent(Game& game, const std::function<void(Game&)>& handler) {
    const GameRecord record = game.record;
    const Controls controls = game.controls;
    const bool open = game.blnOpen;
    try {
        handler(game);
    } catch (const ProgramEnd& end) {
        game.blnOpen = false;
        game.blnEnded = true;
        game.exitStatus = end.exitStatus;
    } catch (const std::exception& error) {
        game.record = record;
        game.controls = controls;
        game.blnOpen = open;
        game.ports.dialogs.Tell(error.what());
    }
}

}  // namespace qarn
