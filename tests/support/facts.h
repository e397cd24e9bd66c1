#pragma once

#include <string>
#include <vector>

#include "core/game.h"

namespace qarn {

/// One thing that a transcript shows when it has changed.
struct Fact {
    const char* sign;  ///< "@" for what is played, "#" for the controls
    std::string name;
    std::string value;
};

/// Everything of a game that a player can see, its status line and the colours of its squares
/// aside.
std::vector<Fact> FactsOf(const Game& game);

/// The facts with this sign that have changed, on a line; nothing when there are none.
std::string Changes(const std::string& sign, const std::vector<Fact>& before,
                    const std::vector<Fact>& after);

/// The text with every occurrence of `what` replaced.
std::string Replaced(std::string text, const std::string& what, const std::string& with);

}  // namespace qarn
