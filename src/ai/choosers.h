#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "core/plan.h"
#include "core/position.h"

namespace qarn {

/// Decides what the side to move does in its turn; nothing when it finds nothing to do. The same
/// position and seed give the same plan everywhere.
using Chooser = std::optional<Plan> (*)(const Position& position, std::uint64_t seed);

/// An opponent, by the name that it is chosen with.
struct Opponent {
    std::string_view name;
    Chooser choose;
    bool forPeople = true;  ///< offered to a person; else for matches and tests alone
};

/// All opponents. A new one is a line in this table.
std::span<const Opponent> Opponents();

/// The opponent with this name; null when there is none.
const Opponent* FindOpponent(std::string_view name);

}  // namespace qarn
