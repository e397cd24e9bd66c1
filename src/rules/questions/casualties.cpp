#include "rules/questions/casualties.h"

#include <vector>

namespace qarn {

std::uint8_t ChooseDeadAnimal(const Position& position, std::span<const std::uint8_t> list) {
    std::size_t choice = 1;
    int lowest = 100;
    for (std::size_t place = 1; place <= list.size(); ++place) {
        const Group& people = position.People.at(list[place - 1]);
        if (IsTransport(people) || people.Attack + people.Defense >= lowest) continue;
        lowest = people.Attack + people.Defense;
        choice = place;
    }
    return static_cast<std::uint8_t>(choice);
}

std::uint8_t ChooseDeadAnimal(const Position& position, Square square) {
    const PeopleSet people = PeopleOn(position, square);
    std::array<std::uint8_t, peopleCount> list{};
    std::size_t count = 0;
    for (const std::uint8_t i : people) list[count++] = i;
    return ChooseDeadAnimal(position, std::span(list).first(count));
}

std::array<std::uint8_t, 3> PeopleLeft(const Position& position) {
    std::array<std::uint8_t, 3> left{};
    for (std::size_t i = 1; i <= peopleCount && !IsTransport(position.People[i]); ++i) {
        if (OnBoard(position.People[i])) ++left.at(position.People[i].Side);
    }
    return left;
}

}  // namespace qarn
