#pragma once

#include <cstdint>
#include <iosfwd>
#include <vector>

namespace qarn {

/// What `qarn-console --selfplay` is asked for.
struct SelfPlayOptions {
    long games = 1;              ///< of each scenario, at least 1
    std::vector<int> scenarios;  ///< numbers 1 to 12, in the order of the output
    std::uint64_t seed = 1;
    bool json = false;
};

/// Lets the computer play against itself and prints what came of it: a table, a line as soon as its
/// scenario is done, or one JSON object in one line. Reports how far it is on `progress` in a line
/// that it removes again; null: nowhere. Throws std::runtime_error when a game stops for a failure
/// of the program.
void RunSelfPlay(const SelfPlayOptions& options, std::ostream& out, std::ostream* progress);

}  // namespace qarn
