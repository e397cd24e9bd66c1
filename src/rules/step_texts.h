#pragma once

#include <string>

#include "rules/questions/step.h"

namespace qarn {

/// What the status line says of a step. A plain step has nothing to say beyond the mobility units
/// left, and a direct attack says what comes of it.
std::string TextOf(StepResult r);

}  // namespace qarn
