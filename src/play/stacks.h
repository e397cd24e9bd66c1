#pragma once

#include <optional>

#include "rules/questions/step.h"

namespace qarn {

struct GameRecord;

/// The group in move, once its items are confirmed and until the move is over; none otherwise.
std::optional<MovingGroup> GroupInMove(const GameRecord& record);

/// The position as it is when the side of those on the square is to move: that of the first of
/// them, unless the side to move can set out from there.
Position PositionInTurnOf(const GameRecord& record, Square square);

/// All who can be chosen to move together from a square on which a move can start. Throws
/// EightBitOverflow when their mobility passes 255.
MovingGroup WholeStack(const Position& position, Square square);

}  // namespace qarn
