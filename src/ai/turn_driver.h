#pragma once

#include "core/game.h"

namespace qarn {

/// The interval of tmrAI in milliseconds: slow enough for a person to follow.
inline constexpr int tmrAIInterval = 1000;

/// One tick of tmrAI. While the computer plays the side to move, disables the timer and either
/// chooses an action or replays the next stage of the chosen one; otherwise does nothing. After a
/// failure the timer stays disabled, so that its box does not come back every second.
void tmrAI_Timer(Game& game);

}  // namespace qarn
