#pragma once

#include <span>
#include <string_view>

namespace qarn {

/// How side 1 did in a scenario when Captain played itself: its share of the games, 0 to 1.
struct RecordedShare {
    std::string_view code;  ///< of the scenario
    double firstSide;
};

/// All that is recorded, from matches/captain-captain.json.
std::span<const RecordedShare> RecordedShares();

}  // namespace qarn
