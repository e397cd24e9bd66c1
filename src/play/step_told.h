#pragma once

#include <string>

#include "core/square.h"

namespace qarn {

struct GameRecord;

/// What the group in move would meet with on a square: what it costs to come there, or why the next
/// click there is refused. Empty without a group in move, and for its own square.
std::string StepTold(const GameRecord& record, Square square);

}  // namespace qarn
