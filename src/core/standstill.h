#pragma once

#include <array>

#include "core/happenings.h"

namespace qarn {

/// How long nothing has come about in a game.
struct Standstill {
    int turns =
        0;  ///< that have begun, of both sides together, since somebody fell or something burned
    bool measured = false;
    /// Between what bounds the evaluation of each side has stayed all the while; once measured.
    std::array<float, 3> lowest{}, highest{};
    bool drawn = false;  ///< the computers have agreed on a draw, and rest until the game goes on

    friend bool operator==(const Standstill&, const Standstill&) = default;
};

/// Counts what an event has brought about.
void CountTurns(Standstill& standstill, const Happenings& happenings);

}  // namespace qarn
