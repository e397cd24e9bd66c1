#pragma once

#include <string_view>

namespace qarn {

// Words of the lines of a kept journal.

inline constexpr std::string_view personWord = "person";  ///< who plays a turn, no opponent
inline constexpr std::string_view nobodyWord = "-";       ///< an empty set of people

}  // namespace qarn
