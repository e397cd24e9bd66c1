#pragma once

#include <cstdint>
#include <iosfwd>
#include <vector>

#include "ai/choosers.h"

namespace qarn {

/// What `qarn-console --match` is asked for.
struct MatchOptions {
    const Opponent* a = nullptr;
    const Opponent* b = nullptr;
    long seeds = 100;            ///< each is played twice in each scenario
    std::vector<int> scenarios;  ///< numbers 1 to 12, in the order of the output
    std::uint64_t seed = 1;
    long mostTurns = 200;
    bool sprt = false;
    bool json = false;
};

/// Lets two opponents play a match and prints what came of it for the first of them: a table, or
/// one JSON object in one line. Tells how far it is on `progress` in a line that it removes again;
/// null: nowhere.
void RunMatch(const MatchOptions& options, std::ostream& out, std::ostream* progress);

}  // namespace qarn
