#include "window/run_event.h"

#include <exception>

namespace qarn {

void RunEvent(Game& game, const std::function<void(Game&)>& handler) {
    const Game before = game;
    try {
        handler(game);
    } catch (const ProgramEnd& end) {
        game.blnOpen = false;
        game.blnEnded = true;
        game.exitStatus = end.exitStatus;
    } catch (const std::exception& error) {
        game.record = before.record;
        game.controls = before.controls;
        game.blnOpen = before.blnOpen;
        game.ports.dialogs.Tell(error.what());
    }
}

}  // namespace qarn
