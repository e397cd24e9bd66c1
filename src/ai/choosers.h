#pragma once

#include <span>
#include <string_view>

#include "ai/chooser.h"

namespace qarn {

/// An opponent, by the name that it is chosen with. Those that a person can choose stand in
/// core/opponents.h too.
struct Opponent {
    std::string_view name;
    Chooser choose;
};

/// All opponents. A new one is a line in this table.
std::span<const Opponent> Opponents();

/// The opponent with this name; null when there is none.
const Opponent* FindOpponent(std::string_view name);

}  // namespace qarn
