#include "ai/turn_driver.h"

#include "ai/action.h"
#include "ai/choose_move.h"
#include "window/run_event.h"

namespace qarn {

void tmrAI_Timer(Game& game) {
    if (!IsComputersTurn(game.record)) return;
    game.controls.tmrAI.Enabled = false;
    RunEvent(game, game.record.Action.blnAIBusy ? StepAction : ChooseMove);
}

}  // namespace qarn
