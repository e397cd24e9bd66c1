#pragma once

#include "core/plan.h"

namespace qarn {

struct Game;

/// Begins the replay of a plan through the window's own buttons, boxes and squares. Presses the
/// move button or, for an attack, the attack button, and enables the timer for the first stage. To
/// pass is to confirm a stack and end its move where it stands.
void StartAction(Game& game, const Plan& plan);

/// Replays the next stage of the action, and enables the timer while there is one after it.
void StepAction(Game& game);

/// Forgets the action that is being replayed.
void DropAction(Game& game);

/// Puts the highlight on the square in column X (1 to 18), row Y (1 to 10) and clicks it as a
/// person does.
void ClickSquare(Game& game, int X, int Y);

}  // namespace qarn
