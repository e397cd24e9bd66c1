#pragma once

#include <string>
#include <vector>

#include "core/game.h"
#include "support/text.h"

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

}  // namespace qarn
