#pragma once

#include <array>
#include <cstdint>

#include "ai/choice_times.h"
#include "ai/chooser.h"
#include "core/position.h"

namespace qarn {

/// What one player did in a game.
struct PlayerRecord {
    int strengthLeft = 0;  ///< attack and defense of its characters on the board at the end
    long refused = 0;      ///< plans that the rules refuse, or a part of them
    ChoiceTimes times;
};

/// How a game between two choosers came out.
struct MatchGame {
    std::uint8_t winner = 0;  ///< side 1 or 2; 0: cut off
    long turns = 0;
    std::array<PlayerRecord, 3> players;  ///< by side, from index 1; no side's are in 0

    /// The score of a side: 1 for a win, 0.5 when the game was cut off.
    double Score(std::uint8_t side) const;
    /// The same, but a game that was cut off belongs to the side with more strength left.
    double JudgedScore(std::uint8_t side) const;
};

/// Plays a game from a position in which nobody has the turn yet, on positions alone. Draws the
/// first side and then two throws a turn, needed or not, from `seed`, so that all games of a seed
/// have the same luck whoever plays; the choosers' seeds are a second sequence. A chooser that
/// finds nothing passes. Of a plan that the rules refuse, what they leave of it is played, as the
/// window's buttons would, and that is counted. Cuts the game off after `mostTurns` turns. The same
/// seed gives the same game everywhere, the times aside. Throws EightBitOverflow when a sum passes
/// 255.
MatchGame PlayMatchGame(Position position, const std::array<Chooser, 3>& choosers,
                        std::uint64_t seed, long mostTurns);

}  // namespace qarn
