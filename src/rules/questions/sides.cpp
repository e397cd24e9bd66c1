#include "rules/questions/sides.h"

namespace qarn {

PeopleSet WithoutSide(const Position& position, PeopleSet people, std::uint8_t side) {
    PeopleSet others;
    for (const std::uint8_t i : people) {
        if (position.People[i].Side != side) others.Add(i);
    }
    return others;
}

}  // namespace qarn
