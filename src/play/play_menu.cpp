#include "play/play_menu.h"

#include "play/turn_history.h"
#include "window/menu_commands.h"

namespace qarn {

std::function<void(Game&)> HandlerOf(const MenuCommand& command, TurnHistory& history) {
    if (command.Name == "mnuTakeBack") return [&](Game& game) { history.TakeBack(game); };
    if (command.Name == "mnuCancelMove") return [&](Game& game) { history.CancelMove(game); };
    return command.Click;
}

}  // namespace qarn
