#include "window/run_event.h"

#include "core/failure_text.h"
#include "core/game.h"
#include "window/hint_mark.h"
#include "window/recovery.h"

namespace qarn {
namespace {

void Remember(Game& game) {
    game.beforeEvent.record = game.record;
    game.beforeEvent.controls = game.controls;
    game.beforeEvent.blnOpen = game.blnOpen;
}

void RollBack(Game& game) {
    game.record = game.beforeEvent.record;
    game.controls = game.beforeEvent.controls;
    game.blnOpen = game.beforeEvent.blnOpen;
    game.happenings.clear();
    ReturnToRecovery(game);
}

}  // namespace

bool RunEvent(Game& game, std::string_view name, const std::function<void(Game&)>& handler) {
    Remember(game);
    game.happenings.clear();
    try {
        handler(game);
        CountTurns(game.record.Standstill, game.happenings);
        FollowMove(game.record.LastMove, game.happenings);
        if (!game.happenings.empty()) ForgetHint(game);  // the game has gone on
    } catch (const ProgramEnd& end) {
        game.blnOpen = false;
        game.blnEnded = true;
        game.exitStatus = end.exitStatus;
    } catch (...) {
        RollBack(game);
        game.ports.dialogs.Tell(FailureText(std::current_exception(), name));
        return false;
    }
    FollowRecovery(game);
    return true;
}

}  // namespace qarn
