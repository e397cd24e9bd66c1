#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/game_record.h"

namespace qarn {

/// A position as tests put it into words: a scenario's code first (else HM), or "older7" for a file
/// of the older form; then "turn2" (else side 1 is to move), "computer2" for a side that the
/// computer plays, "Q@13,4" for a group, "13,5=1" for a square's terrain. Further words change what
/// no file can: "abbey" and "stonemantle" set these landmarks' kinds of terrain up, "Q.Attack=200"
/// gives a group another strength or side.
struct PositionWords {
    /// Reads them. Throws std::invalid_argument for a word that is none of these.
    explicit PositionWords(const std::string& words);

    struct Placed {
        std::size_t group;
        int X, Y;
    };
    struct Changed {
        std::size_t group;
        std::uint8_t PeopleRecord::*strength;
        std::uint8_t value;
    };

    std::string code = "HM";
    int scenario = 7;
    int turn = 1;
    bool computer[3]{};
    std::vector<Placed> placed;
    std::vector<int> landmarks;  ///< column, row and terrain of each
    std::vector<Changed> changed;
    bool abbey = false;
    bool stonemantle = false;

private:
    bool Take(const std::string& word);
    std::size_t GroupWith(const std::string& groupCode, bool withoutPlace) const;
};

/// The text of a saved game in a position. Groups that are not named are off the board; without any
/// named group and terrain, the text is that of a new game whose side to move has been drawn.
std::string SavedGame(const std::string& position);

/// The text with one of its lines, counted from 1, replaced.
std::string WithLine(const std::string& text, int line, const std::string& replacement);

}  // namespace qarn
