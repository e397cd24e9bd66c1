#pragma once

#include <functional>
#include <optional>

#include "ai/choose_move.h"

namespace qarn {

struct Game;

/// The interval of tmrAI in milliseconds: slow enough for a person to follow.
inline constexpr int tmrAIInterval = 1000;

/// How a front end comes to the plan of a choice, on this thread or another. May throw.
using ChoiceMaker = std::function<std::optional<Plan>(const Choice&)>;

/// Has the choice made here and now.
std::optional<Plan> ChooseAtOnce(const Choice& choice);

/// The handler of a tick of tmrAI. While the computer plays the side to move, disables the timer
/// and either has an action chosen, see DueChoice, or replays the next stage of the chosen one; an
/// action whose move is no longer under way is forgotten first. Does nothing in a person's turn,
/// but that an opponent that answers for itself ends its move, if burning has passed the turn.
/// While a person looks at squares, such an opponent plays on.
void tmrAI_Timer(Game& game, const ChoiceMaker& choose = ChooseAtOnce);

/// The event of a tick: runs tmrAI_Timer. After a failure the timer stays disabled, so that its box
/// does not come back every second; gives false then.
bool Tick(Game& game, const ChoiceMaker& choose = ChooseAtOnce);

}  // namespace qarn
