#pragma once

#include <string>
#include <vector>

namespace qarn {

struct Game;
struct Journal;

/// One turn in plain words.
struct ToldTurn {
    std::string heading;  ///< empty: what stood at the start, before the first turn
    std::vector<std::string> sentences;
};

/// What a journal tells of the game that it belongs to, turn by turn.
std::vector<ToldTurn> TellTurns(const Journal& journal, const Game& game);

/// Rolls and luck of both sides in sentences; none before the first attack was rolled for.
std::vector<std::string> TellLuck(const Journal& journal, const Game& game);

/// The whole journal as lines of text: turns, their sentences a little to the right, and the luck.
std::vector<std::string> TellJournal(const Journal& journal, const Game& game);

}  // namespace qarn
