#pragma once

#include <array>
#include <span>

#include "rules/questions/odds.h"

namespace qarn {

struct Journal;

/// What the die gave one side.
struct SideLuck {
    int attacks = 0;      ///< that were rolled for
    int wins = 0;         ///< of these
    double expected = 0;  ///< wins, by the odds of each attack
    double chance = 1;    ///< that wins differ from what is expected as far as this, or farther, on
                          ///< the same side
    std::array<int, dieSides + 1> rolls{};  ///< how often it threw each number, second rolls too

    /// Wins above what was expected; negative: below.
    double Difference() const { return wins - expected; }
};

/// What the die gave both.
struct Luck {
    std::array<SideLuck, 3> sides;  ///< used from index 1
    double sum = 0;     ///< of the differences, those of side 2 counted against side 1's
    double chance = 1;  ///< of so large a sum, or a larger one, on the same side
};

/// The luck of all attacks that a journal tells of. An attack that burned a landmark down had no
/// roll and does not count.
Luck LuckOf(const Journal& journal);

/// The exact chance that of independent attempts with these chances at least so many succeed: the
/// upper tail of the Poisson binomial distribution.
double ChanceOfAtLeast(std::span<const double> chances, int successes);

}  // namespace qarn
