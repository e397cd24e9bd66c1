#pragma once

#include <functional>

namespace qarn {

struct Game;
struct MenuCommand;
class TurnHistory;

/// The handler of a menu item: the one of the table of menu commands or, where that has none, the
/// one of the menu Play that stands in this room. `history` is that of the game, and outlives it.
std::function<void(Game&)> HandlerOf(const MenuCommand& command, TurnHistory& history);

}  // namespace qarn
