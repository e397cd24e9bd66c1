#pragma once

#include <cstdint>

#include "core/game.h"

namespace qarn {

/// Begins the replay of an action: the stack on square (bytX, bytY) goes along the direction codes
/// bytSteps, indexes 1 to bytLength (at least 1). Presses the move button and enables the timer for
/// the first stage.
void StartAction(Game& game, std::uint8_t bytX, std::uint8_t bytY, const PathSteps& bytSteps,
                 std::uint8_t bytLength);

/// Replays the next stage of the action, and enables the timer while there is one after it.
void StepAction(Game& game);

/// Puts the highlight on the square in column X (1 to 18), row Y (1 to 10) and clicks it as a
/// person does.
void ClickSquare(Game& game, int X, int Y);

}  // namespace qarn
