#pragma once

#include <cstdint>
#include <string>

namespace qarn {

/// A sentence on a side, 1 or 2, at the start of scenario 1 to 12: how many groups it has, its
/// strongest group, the sums of its strengths, and about where it stands; and by what mark the
/// picture of the start shows it. Throws
/// std::out_of_range for another scenario.
std::string ToldOfSide(int scenario, std::uint8_t side);

}  // namespace qarn
