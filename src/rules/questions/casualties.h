#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "core/position.h"

namespace qarn {

/// The computer's casualty: the place, counted from 1 among the people of a list, of the character
/// with the smallest attack and defense together; 1 when there is none below 100.
std::uint8_t ChooseDeadAnimal(const Position& position, std::span<const std::uint8_t> list);

/// The same among the people of a square, in roster order.
std::uint8_t ChooseDeadAnimal(const Position& position, Square square);

/// The groups left of sides 1 and 2, used from index 1: the entries before the first transport
/// piece that stand on the board.
std::array<std::uint8_t, 3> PeopleLeft(const Position& position);

}  // namespace qarn
