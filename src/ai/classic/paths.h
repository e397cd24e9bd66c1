#pragma once

#include <array>
#include <cstdint>

#include "core/square.h"

namespace qarn {

/// What a step along a path does before the path is turned into directions: towards the other
/// square's column, or towards its row.
enum StepCode : std::uint8_t { AlongX = 1, AlongY = 2 };

/// The most steps that a path without detours has: from one corner of the board to the opposite
/// one.
inline constexpr int longestDirectPath = columnCount - 1 + rowCount - 1;

/// The steps of one path, used from index 1.
using PathSteps = std::array<std::uint8_t, longestDirectPath + 1>;

/// The most paths that a path table holds.
inline constexpr int mostPaths = 1800;

/// One entry of a path table.
struct PathRecord {
    std::int16_t intCount = 0;  ///< in entry 0 only: the number of paths in entries 1 to intCount
    PathSteps bytSteps;         ///< one path; left as it is until EnumeratePaths writes it
};

/// Entry 0 carries the count, the others the paths. Entries beyond the count may hold paths of an
/// earlier enumeration.
using PathTable = std::array<PathRecord, mostPaths + 1>;

/// Lists every shortest path from (bytX1, bytY1) to (bytX2, bytY2) as step codes, in the order in
/// which AlongX comes before AlongY, and gives their number of steps. A square's path to itself is
/// one path without steps. Of more than 1800 paths the first 1800 are kept.
std::uint8_t EnumeratePaths(std::uint8_t bytX1, std::uint8_t bytY1, std::uint8_t bytX2,
                            std::uint8_t bytY2, PathTable& Paths);

}  // namespace qarn
