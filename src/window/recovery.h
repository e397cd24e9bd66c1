#pragma once

#include <optional>
#include <string>

namespace qarn {

struct Game;

/// Keeps the game at each change of turn, by what has just happened, and forgets it when it has
/// ended.
void FollowRecovery(const Game& game);

/// Where something else is kept of the game at strGamePath than its file holds, asks whether to go
/// on from that, telling both times. Gives the file to load then; No puts what was kept aside.
std::optional<std::string> AsksToRecover(Game& game);

}  // namespace qarn
