#pragma once

#include <optional>

#include "core/square.h"

namespace qarn {

struct GameRecord;

/// The next square, row by row from another one and round, on which groups of the side to move
/// stand that can go somewhere; the one before it when not `forward`. None when there is none.
std::optional<Square> NextOwnGroup(const GameRecord& record, Square from, bool forward);

}  // namespace qarn
