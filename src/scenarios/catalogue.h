#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace qarn {

inline constexpr int scenarioCount = 12;

/// One row of the catalogue. Its place, counted from 1, is the scenario's number; game files and
/// the list of the start window depend on it.
struct ScenarioNames {
    std::string_view Code;
    std::string_view ListTitle;
    std::string_view CaptionTitle;
};

/// The row of scenario 1 to 12. Throws std::out_of_range for another number.
const ScenarioNames& NamesOfScenario(int scenario);

/// Sets `code` to the code of scenario 1 to 12 and leaves it as it is for any other number.
void ScenarioCode(int scenario, std::string& code);

/// The number of the scenario with exactly this code; 0 when there is none.
std::uint8_t ScenarioNumber(std::string_view code);

/// Appends the twelve list titles to `text` as an English enumeration with one blank at its end,
/// each title in double quotes when `quoted` is true.
void ListNames(bool quoted, std::string& text);

}  // namespace qarn
