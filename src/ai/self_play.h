#pragma once

#include <chrono>
#include <cstdint>
#include <functional>

#include "ai/self_play_ports.h"
#include "core/game.h"

namespace qarn {

/// A game is broken off after this many turns. The computer repeats a move that the rules refuse
/// for as long as the position stays the same, so a game need not come to an end by itself.
inline constexpr long mostTurns = 1000;

/// How a game that the computer plays against itself came out.
enum class Outcome {
    Won1,       ///< side 1 won
    Won2,       ///< side 2 won
    Stalemate,  ///< "No good move!"
    Endless,    ///< broken off after mostTurns turns
};

/// One game of the computer against itself. It has no file: the end of a game, which deletes the
/// game's file, finds none.
class SelfPlayedGame {
public:
    /// Starts a new game of scenario 1 to 12, as a load with the generator seeded with `seed` does.
    /// Throws std::out_of_range for another scenario.
    SelfPlayedGame(int scenario, std::uint64_t seed);
    SelfPlayedGame(const SelfPlayedGame&) = delete;
    SelfPlayedGame& operator=(const SelfPlayedGame&) = delete;

    Game& CurrentGame() { return game_; }

    /// Lets the timer tick until the game is over. Throws std::runtime_error with the reason when a
    /// failure of the program stops it.
    Outcome PlayToEnd();

    /// The turns that were begun. One that came to "No good move!" is none.
    long Turns() const { return turns_; }

private:
    SelfPlayPorts ports_;
    Game game_;
    long turns_ = 0;
};

/// What came of a number of games of one scenario.
struct SelfPlayResult {
    long games = 0;
    long wins1 = 0;
    long wins2 = 0;
    long stalemates = 0;
    long endless = 0;
    long turns = 0;  ///< of all games together
    std::chrono::duration<double> time{};
};

/// Plays `games` games of scenario 1 to 12, game k of them, counted from 1, with seed
/// `seed` + k - 1. The same seed gives the same result everywhere, the time aside. Calls `progress`
/// with the number of games played after each of them. Throws what SelfPlayedGame throws.
SelfPlayResult PlayItself(int scenario, long games, std::uint64_t seed,
                          const std::function<void(long)>& progress);

}  // namespace qarn
