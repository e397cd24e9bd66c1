#include "play/luck.h"

#include <algorithm>
#include <numeric>
#include <vector>

#include "play/journal.h"

namespace qarn {
namespace {

// Attempts with so many winning numbers of the die each, and how many of them have succeeded.
class Attempts {
public:
    void Add(int winningNumbers, bool succeeded) {
        winningNumbers_.push_back(winningNumbers);
        successes_ += succeeded ? 1 : 0;
    }

    int Count() const { return static_cast<int>(winningNumbers_.size()); }
    int Successes() const { return successes_; }
    double Expected() const { return static_cast<double>(Sum()) / dieSides; }

    // On the side of what was expected on which the successes are.
    double ChanceOfSoManyOrSoFew() const {
        const bool many = successes_ * dieSides >= Sum();
        std::vector<double> chances;
        for (const int numbers : winningNumbers_) {
            chances.push_back(static_cast<double>(many ? numbers : dieSides - numbers) / dieSides);
        }
        return ChanceOfAtLeast(chances, many ? successes_ : Count() - successes_);
    }

private:
    int Sum() const { return std::accumulate(winningNumbers_.begin(), winningNumbers_.end(), 0); }

    std::vector<int> winningNumbers_;
    int successes_ = 0;
};

}  // namespace

// By recursion over the attempts: R. E. Barlow and K. D. Heidtmann, "Computing k-out-of-n System
// Reliability", IEEE Transactions on Reliability R-33 (1984). Only sums and products of chances
// come up in it, so that small results keep their digits. `some[k]` is the chance of k successes
// so far; all from `most` on are one, since they suffice.
double ChanceOfAtLeast(std::span<const double> chances, int successes) {
    if (successes <= 0) return 1;
    const auto most = static_cast<std::size_t>(successes);
    std::vector<double> some(most + 1);
    some[0] = 1;
    for (const double chance : chances) {
        some[most] += some[most - 1] * chance;
        for (std::size_t k = most - 1; k > 0; --k) {
            some[k] = some[k] * (1 - chance) + some[k - 1] * chance;
        }
        some[0] *= 1 - chance;
    }
    return std::min(some[most], 1.0);
}

Luck LuckOf(const Journal& journal) {
    Luck luck;
    std::array<Attempts, 3> attempts;
    Attempts all;  // a win of side 2 is a failure of side 1
    for (const JournalEntry& entry : journal.entries) {
        const Fight* fight = std::get_if<Fight>(&entry);
        if (fight == nullptr || !fight->attack.roll) continue;
        const Attacked& attack = fight->attack;
        const int winning = OddsOf(attack.attack, attack.defense).win;
        const bool won = attack.result == AttackResult::Won;
        attempts.at(attack.side).Add(winning, won);
        all.Add(attack.side == 1 ? winning : dieSides - winning, (attack.side == 1) == won);
        auto& rolls = luck.sides.at(attack.side).rolls;
        ++rolls.at(static_cast<std::size_t>(*attack.roll));
        if (attack.secondRoll) ++rolls.at(static_cast<std::size_t>(*attack.secondRoll));
    }
    for (std::size_t side = 1; side <= 2; ++side) {
        SideLuck& one = luck.sides[side];
        one.attacks = attempts[side].Count();
        one.wins = attempts[side].Successes();
        one.expected = attempts[side].Expected();
        one.chance = attempts[side].ChanceOfSoManyOrSoFew();
    }
    luck.sum = luck.sides[1].Difference() - luck.sides[2].Difference();
    luck.chance = all.ChanceOfSoManyOrSoFew();
    return luck;
}

}  // namespace qarn
