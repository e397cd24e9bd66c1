#pragma once

#include "core/happenings.h"

namespace qarn {

/// Where a side went in a turn, and where it fought.
struct TurnTrace {
    Path path = {};     ///< the start first; none: nobody went
    Square fight = {};  ///< (0, 0): there was none

    friend bool operator==(const TurnTrace&, const TurnTrace&) = default;
};

/// The traces of the turn that is under way and of the one before it, which is there to be looked
/// at until it is taken away.
struct LastMove {
    TurnTrace underWay;
    TurnTrace shown;

    friend bool operator==(const LastMove&, const LastMove&) = default;
};

/// Follows what an event has brought about.
void FollowMove(LastMove& move, const Happenings& happenings);

}  // namespace qarn
