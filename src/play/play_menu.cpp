#include "play/play_menu.h"

#include "play/end_by_agreement.h"
#include "play/pass_turn.h"
#include "play/turn_history.h"
#include "window/menu_commands.h"

namespace qarn {

std::function<void(Game&)> HandlerOf(const MenuCommand& command, TurnHistory& history) {
    if (command.Name == "mnuTakeBack") return [&](Game& game) { history.TakeBack(game); };
    if (command.Name == "mnuCancelMove") return [&](Game& game) { history.CancelMove(game); };
    if (command.Name == "mnuPassTurn") return mnuPassTurn_Click;
    if (command.Name == "mnuResign") return mnuResign_Click;
    if (command.Name == "mnuOfferDraw") return mnuOfferDraw_Click;
    return command.Click;
}

}  // namespace qarn
