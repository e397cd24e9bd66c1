#pragma once

#include "core/plan.h"
#include "core/position.h"

namespace qarn {

/// What the rules leave of a plan of the side to move: the plan itself when they allow all of it; a
/// march without the steps that they refuse; and a pass when nothing is left, also where a lone
/// bird would come to land on water. Throws EightBitOverflow when a sum passes 255.
Plan AllowedPart(const Position& position, const Plan& plan);

}  // namespace qarn
