#pragma once

#include <string>

namespace qarn {

/// In words, which side stands better when side 1 (the goodbeasts) makes this share of the games, 0
/// to 1: "even" from 0.45 to 0.55, "badbeasts better" below, "badbeasts much better" below 0.35.
std::string BalanceWord(double firstSide);

/// The word for scenario 1 to 12, by the recorded games of Captain against itself.
/// Throws std::out_of_range for another number, or when the record holds no such games.
std::string BalanceOfScenario(int scenario);

}  // namespace qarn
