#pragma once

#include "rules/questions/step.h"

namespace qarn {

struct Game;

/// What comes of the step of the moving group onto its neighbour D, of which `step` is the answer
/// beforehand. Carries out the direct attack when enemies stand there and the player wants it.
StepResult CheckStep(Game& game, const StepAnswer& step, Square D);

}  // namespace qarn
