#include "ai/turn_driver.h"

#include "ai/action.h"
#include "ai/choose_move.h"
#include "core/game.h"
#include "window/run_event.h"

namespace qarn {
namespace {

bool IsOwnMoveUnderWay(const ActionRecord& action) { return action.blnAIBusy && action.blnOwnMove; }

// A direct attack that burns passes the turn before its move has ended.
bool IsPersonsMoveWaiting(const GameRecord& record) {
    return record.blnMoveUnderWay && record.blnMoveFinished && !record.blnCasualtyPending &&
           !IsOwnMoveUnderWay(record.Action);
}

}  // namespace

void tmrAI_Timer(Game& game) {
    const GameRecord& record = game.record;
    if (!IsComputersTurn(record) || IsPersonsMoveWaiting(record)) return;
    game.controls.tmrAI.Enabled = false;
    if (IsOwnMoveUnderWay(record.Action)) {
        StepAction(game);
    } else {
        DropAction(game);
        ChooseMove(game);
    }
}

bool Tick(Game& game) {
    const bool went = RunEvent(game, "tmrAI_Timer", tmrAI_Timer);
    if (!went) game.controls.tmrAI.Enabled = false;
    return went;
}

}  // namespace qarn
