#pragma once

#include <cstdint>

#include "core/path.h"
#include "core/people_set.h"
#include "core/square.h"

namespace qarn {

/// What a side does in its turn.
enum class PlanKind : std::uint8_t {
    March,   ///< people walk along a path; its last step may join others or attack
    Attack,  ///< with the Attack command
    Pass,
};

/// A whole turn as a player decides it, questions of the rules answered with yes.
struct Plan {
    PlanKind kind = PlanKind::Pass;
    Square start = {};      ///< of a march, or the attackers' square
    PeopleSet people = {};  ///< of a march: who goes, of those on the starting square
    Path path = {};         ///< of a march: the squares walked onto, one after the other
    Square target = {};     ///< of an attack
    /// The roster entry that dies when the attackers lose a character; 0, or an entry that is not
    /// there: the weakest.
    std::uint8_t casualty = 0;

    friend bool operator==(const Plan&, const Plan&) = default;
};

}  // namespace qarn
