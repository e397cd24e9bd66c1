#pragma once

#include <cstdint>
#include <vector>

#include "core/position.h"

namespace qarn {

/// The squares that side 1 or 2 could attack if the next turn were its own: those of the other
/// side's groups that it could, and the empty ones where it could if groups of the other side stood
/// there. Throws EightBitOverflow when a sum passes 255.
std::vector<Square> StrikesOf(const Position& position, std::uint8_t side);

}  // namespace qarn
