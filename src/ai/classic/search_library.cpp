#include "ai/classic/search_library.h"

#include <algorithm>

namespace qarn {

bool IsAnyGroupAt(const Position& position, Square square) {
    return std::any_of(position.People.begin() + 1, position.People.end(), [&](const Group& one) {
        return one.LocationX == square.X && one.LocationY == square.Y;
    });
}

bool IsEnemyAt(const Position& position, Square square, std::uint8_t bytSide) {
    const PeopleSet people = PeopleOn(position, square);
    return std::any_of(people.begin(), people.end(), [&](std::uint8_t i) {
        return position.People[i].Side == OtherSide(bytSide);
    });
}

}  // namespace qarn
