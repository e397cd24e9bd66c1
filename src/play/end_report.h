#pragma once

#include <array>
#include <string>

namespace qarn {

struct Game;
struct Journal;

/// What there is to say of a game that is over.
struct EndReport {
    std::string outcome;              ///< who has won
    std::string turns;                ///< how many it took
    std::array<std::string, 3> lost;  ///< whom each side has lost; used from index 1
    std::string luck;                 ///< what the die gave both, a sentence a line
};

/// True when the last event has ended the game, be it by a victory or by a draw.
bool IsOver(const Game& game);

/// The report of a game that is over.
EndReport ReportOfEnd(const Game& game, const Journal& journal);

}  // namespace qarn
