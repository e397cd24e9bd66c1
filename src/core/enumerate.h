#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace qarn {

/// The names in one text, separated by commas. Consecutive equal names are named once, with their
/// number, as in "Boat (2), Cart".
std::string Enumerate(const std::vector<std::string_view>& names);

}  // namespace qarn
