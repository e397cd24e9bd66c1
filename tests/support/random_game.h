#pragma once

#include <random>
#include <string>

#include "support/played_game.h"

namespace qarn {

/// A scenario's groups in a crowd, some of them stronger than they are, in which people do at
/// random what they can. The same seed gives the same game.
class RandomGame : public PlayedGame {
public:
    /// About so many of every three groups are on the board.
    RandomGame(int scenario, unsigned seed, int ofThree = 3);

    /// A whole number of at least 0 and below `bound`.
    int Below(int bound) { return static_cast<int>(chance_() % static_cast<unsigned>(bound)); }

    /// A command of PlayedGame: mostly what the game waits for, and now and then anything else.
    std::string RandomCommand();

    /// Answers and dice for whatever an event leads to, instead of those that are left.
    void QueueAnswersAndDice();

private:
    std::string Near(int place, int last);

    std::mt19937 chance_;
};

}  // namespace qarn
