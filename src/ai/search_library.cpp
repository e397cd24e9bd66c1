#include "ai/search_library.h"

#include <algorithm>

namespace qarn {
namespace {

bool StandsOn(const PeopleRecord& people, int X, int Y) {
    return people.LocationX == X && people.LocationY == Y;
}

}  // namespace

bool IsAnyGroupAt(const Roster& People, int bytX, int bytY) {
    return std::any_of(People.begin() + 1, People.end(),
                       [&](const PeopleRecord& people) { return StandsOn(people, bytX, bytY); });
}

bool IsEnemyAt(const Roster& People, int bytX, int bytY, std::uint8_t bytSide) {
    return std::any_of(People.begin() + 1, People.end(), [&](const PeopleRecord& people) {
        return people.Side == OtherSide(bytSide) && StandsOn(people, bytX, bytY);
    });
}

}  // namespace qarn
