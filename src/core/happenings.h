#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>
#include <variant>
#include <vector>

#include "core/path.h"
#include "core/people_set.h"
#include "core/square.h"

namespace qarn {

// What an event of the game brought about, as plain data, in the order in which it came about.

/// How an attack came out.
enum class AttackResult : std::uint8_t {
    Won = 0,
    Tie = 1,
    Lost = 2,
    NotPossible = 3,  ///< or cancelled
    CancelledAtAbbey = 4,
};

/// People of one side, and transport pieces with them, walked along a path.
struct Moved {
    std::uint8_t side = 0;
    PeopleSet people = {};
    Path path = {};  ///< the start first, then every square walked onto

    friend bool operator==(const Moved&, const Moved&) = default;
};

/// An attack was carried out.
struct Attacked {
    std::uint8_t side = 0;  ///< the side to move, which attacked
    Square from = {};
    Square to = {};
    bool direct = false;       ///< by stepping in, not with the Attack command
    std::uint8_t attack = 0;   ///< units
    std::uint8_t defense = 0;  ///< units, terrain included, and no more than the attackers have
    std::uint8_t threshold = 0;
    std::optional<int> roll = {};  ///< 1 to 5; none when the landmark burned down without one
    AttackResult result = AttackResult::Won;
    std::optional<int> secondRoll = {};  ///< after a win that did not end the game

    friend bool operator==(const Attacked&, const Attacked&) = default;
};

/// Characters of one side died on a square.
struct Lost {
    PeopleSet people = {};
    std::uint8_t side = 0;
    Square at = {};

    friend bool operator==(const Lost&, const Lost&) = default;
};

/// A landmark burned down.
struct Burned {
    Square at = {};
    std::uint8_t terrain = 0;  ///< what the square is now

    friend bool operator==(const Burned&, const Burned&) = default;
};

/// A bird that would have landed on water went back to where it had started.
struct Returned {
    PeopleSet people = {};
    Square at = {};

    friend bool operator==(const Returned&, const Returned&) = default;
};

/// The turn has come to a side, or a game was opened in which it is that side's turn.
struct TurnCame {
    std::uint8_t side = 0;

    friend bool operator==(const TurnCame&, const TurnCame&) = default;
};

/// The game is over.
struct Ended {
    std::uint8_t winner = 0;  ///< 1 or 2; 0: drawn
    bool resigned = false;    ///< the other side has given up

    friend bool operator==(const Ended&, const Ended&) = default;
};

using Happening = std::variant<Moved, Attacked, Lost, Burned, Returned, TurnCame, Ended>;
using Happenings = std::vector<Happening>;

/// True when one of them is of a kind.
template <typename Kind>
bool Brought(const Happenings& happenings) {
    return std::any_of(happenings.begin(), happenings.end(),
                       [](const Happening& one) { return std::holds_alternative<Kind>(one); });
}

}  // namespace qarn
