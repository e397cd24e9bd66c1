#pragma once

#include <filesystem>
#include <string>

namespace qarn {

// Tables of how the opponents do, made from the recorded matches in a folder. They throw PageError,
// naming the record, when one is missing or does not hold what a table tells.

/// The strength of the levels: each against the one below it.
std::string StrengthTable(const std::filesystem::path& matches);

/// Which side stands better in each scenario, by the Warlord's games against itself.
std::string BalanceTable(const std::filesystem::path& matches);

}  // namespace qarn
