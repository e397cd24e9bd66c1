#pragma once

#include "core/position.h"

namespace qarn {

/// Those of a set who are not of a side: the other side's characters and the transport pieces.
PeopleSet WithoutSide(const Position& position, PeopleSet people, std::uint8_t side);

/// Those of a square's people who act in a turn of the side to move: all of them or, by the house
/// rule, its own groups and the transport pieces.
inline PeopleSet ActorsOf(const Position& position, PeopleSet people) {
    if (!position.house.ownGroupsOnly) return people;
    return WithoutSide(position, people, OtherSide(position.bytTurn));
}

/// Those of a square's people whom an attack of the side to move meets: all of them or, by the
/// house rule, the enemy's groups and the transport pieces.
inline PeopleSet DefendersOf(const Position& position, PeopleSet people) {
    if (!position.house.ownGroupsOnly) return people;
    return WithoutSide(position, people, position.bytTurn);
}

}  // namespace qarn
