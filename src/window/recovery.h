#pragma once

#include <optional>
#include <string>

namespace qarn {

struct Game;

/// Begins to keep the game at strGamePath, unless another program does.
void BeginRecovery(Game& game);

/// After an event that was rolled back: keeps the game that stands there again, if any, and not the
/// one that the event was to open.
void ReturnToRecovery(Game& game);

/// Keeps the game at each change of turn, by what has just happened, and forgets it when it has
/// ended. Leaves it to other programs once it is no longer open.
void FollowRecovery(Game& game);

/// Forgets what was kept of the game, which has been saved; what another program keeps stays.
void ForgetRecovery(const Game& game, const std::string& strGamePath);

/// Where something else is kept of the game at strGamePath than its file holds, asks whether to go
/// on from that, telling both times. Gives the file to load then; No puts what was kept aside.
std::optional<std::string> AsksToRecover(Game& game);

}  // namespace qarn
