#pragma once

#include <array>

#include "core/position.h"

namespace qarn {

/// Who stands on each square of a position, for whoever asks about many squares: looked up at once.
class Occupancy {
public:
    explicit Occupancy(const Position& position) {
        for (std::uint8_t i = 1; i <= peopleCount; ++i) {
            const Group& one = position.People[i];
            if (!OnBoard(one)) continue;
            people_[one.LocationX][one.LocationY].Add(i);
            if (!IsTransport(one)) sides_[one.Side].Add(i);
        }
    }

    /// Everyone on the square.
    PeopleSet On(Square square) const { return people_[square.X][square.Y]; }

    /// The characters on the board of side 1 or 2.
    PeopleSet OfSide(std::uint8_t side) const { return sides_[side]; }

private:
    std::array<std::array<PeopleSet, rowCount + 1>, columnCount + 1> people_{};
    std::array<PeopleSet, 3> sides_{};
};

}  // namespace qarn
