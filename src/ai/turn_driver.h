#pragma once

namespace qarn {

struct Game;

/// The interval of tmrAI in milliseconds: slow enough for a person to follow.
inline constexpr int tmrAIInterval = 1000;

/// The handler of a tick of tmrAI. While the computer plays the side to move, disables the timer
/// and either chooses an action or replays the next stage of the chosen one; an action whose move
/// is no longer under way is forgotten first. Does nothing in a person's turn, and while a finished
/// move of a person still waits to be ended.
void tmrAI_Timer(Game& game);

/// The event of a tick: runs tmrAI_Timer. After a failure the timer stays disabled, so that its box
/// does not come back every second; gives false then.
bool Tick(Game& game);

}  // namespace qarn
