#include "rules/questions/step.h"

#include <algorithm>

#include "rules/questions/occupancy.h"

namespace qarn {
namespace {

constexpr int mostTransports = 7;
constexpr int mostCharacters = 4;

int FirstDigit(std::int16_t ability) { return ability / 100; }
int MiddleDigit(std::int16_t ability) { return ability / 10 % 10; }
int LastDigit(std::int16_t ability) { return ability % 10; }

std::uint8_t CostOfSpecialMover(const Group& p, std::uint8_t T) {
    const int middle = MiddleDigit(p.Ability1);
    if (middle == 6 && T == Mountain) return 2;
    if (middle == 6 && T == Forest) return 1;
    return static_cast<std::uint8_t>(middle);
}

// A lone "J" needs the air to itself; an "SK" leads others across.
bool CanSwim(const Position& position, const MovingGroup& group, PeopleSet here) {
    const Group& p = position.People[group.people.First()];
    const bool alone = (here | group.people).Count() == 1;
    if (p.Kind == GroupKind::LoneBird && alone) return true;
    if (p.Kind == GroupKind::LeadingBird) return true;
    return std::any_of(group.people.begin(), group.people.end(),
                       [&](std::uint8_t i) { return position.People[i].Kind == GroupKind::Boat; });
}

bool IsAnyOfSide(const Position& position, PeopleSet people, std::uint8_t side) {
    return std::any_of(people.begin(), people.end(),
                       [&](std::uint8_t i) { return position.People[i].Side == side; });
}

// What the step is, from those who are here onto those who are there.
StepResult ResultOf(const Position& position, const MovingGroup& group, Square to, int cost,
                    PeopleSet here, PeopleSet there) {
    const std::uint8_t T = TerrainOf(position, to);
    if (DistanceBetween(group.at, to) != 1) return StepResult::Impossible;
    if (T == Abbey && there.Empty() && position.bytTurn == 2) return StepResult::Impossible;
    if (IsWater(T) && !CanSwim(position, group, here)) return StepResult::WaterWithoutBoat;
    if (group.mobilityLeft < cost) return StepResult::NotEnoughMobility;

    if (CharactersOf(position, there).Empty()) return StepResult::PlainStep;
    if (IsAnyOfSide(position, there, position.bytTurn)) {
        const PeopleSet unit = there | group.people;
        const int characters = CharactersOf(position, unit).Count();
        if (unit.Count() - characters > mostTransports) return StepResult::TooManyTransports;
        if (characters > mostCharacters) return StepResult::TooManyCharacters;
        return StepResult::JoinedOwn;
    }
    return position.TerrainKinds.at(T).DirectAttack ? StepResult::DirectAttack
                                                    : StepResult::AttackCancelled;
}

StepAnswer AskStepAmong(const Position& position, const MovingGroup& group, Square to,
                        PeopleSet here, PeopleSet there) {
    const std::uint8_t T = TerrainOf(position, to);
    StepAnswer answer{.cost = StepCost(position, group.people, T)};
    if (answer.cost == 0) answer.cost = position.TerrainKinds.at(T).Mobility;
    answer.result = ResultOf(position, group, to, answer.cost, here, there - group.people);

    // Only side 1 ever comes to stand on an abbey's square.
    const bool closed = T == Abbey && position.bytTurn == 2;
    answer.enters = !closed && (answer.result == StepResult::PlainStep ||
                                answer.result == StepResult::JoinedOwn ||
                                answer.result == StepResult::DirectAttack);
    return answer;
}

}  // namespace

std::uint8_t StepCost(const Position& position, PeopleSet people, std::uint8_t T) {
    const Group& p = position.People[people.First()];
    const std::uint8_t kindCost = position.TerrainKinds.at(T).Mobility;
    const bool endsInOne = LastDigit(p.Ability1) == 1 || LastDigit(p.Ability2) == 1;
    if (people.Count() > 1 || (T == Plain && !endsInOne)) return kindCost;

    const bool climbs = (T == Mountain || T == Forest) && FirstDigit(p.Ability1) == 9;
    const bool flies = T != Fortress && FirstDigit(p.Ability1) == 8;
    if (LastDigit(p.Ability1) == 1 && (climbs || flies)) return CostOfSpecialMover(p, T);
    return kindCost;
}

StepAnswer AskStep(const Position& position, const MovingGroup& group, Square to) {
    return AskStepAmong(position, group, to, PeopleOn(position, group.at), PeopleOn(position, to));
}

StepAnswer AskStep(const Position& position, const Occupancy& occupancy, const MovingGroup& group,
                   Square to) {
    return AskStepAmong(position, group, to, occupancy.On(group.at), occupancy.On(to));
}

bool IsLoneBirdOnWater(const Position& position, PeopleSet people, Square square) {
    return people.Count() == 1 && IsBird(position.People[people.First()]) &&
           IsWater(TerrainOf(position, square));
}

}  // namespace qarn
