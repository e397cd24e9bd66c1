#include "ai/opponents/distances.h"

#include <algorithm>
#include <memory>

#include "rules/questions/step.h"

namespace qarn {
namespace {

// What a step onto terrain T costs; 0: no step leads there.
std::uint8_t CostOfStep(const Position& position, Gait gait, std::uint8_t T) {
    if (IsWater(T) && (gait == Gait::OnFoot || gait == Gait::Climbing)) return 0;
    if (gait == Gait::Flying && T != Fortress) return 1;
    if (gait == Gait::Climbing && T == Mountain) return 2;
    if (gait == Gait::Climbing && T == Forest) return 1;
    return position.TerrainKinds[T].Mobility;
}

}  // namespace

Gait GaitOf(const Position& position, PeopleSet people) {
    const Group& first = position.People[people.First()];
    const bool alone = people.Count() == 1;
    if (alone && IsBird(first)) return Gait::Flying;
    if (first.Kind == GroupKind::LeadingBird) return Gait::ByBoat;
    if (alone) return first.Ability1 / 100 == 9 ? Gait::Climbing : Gait::OnFoot;
    const bool sails = std::any_of(people.begin(), people.end(), [&](std::uint8_t i) {
        return position.People[i].Kind == GroupKind::Boat;
    });
    return sails ? Gait::ByBoat : Gait::OnFoot;
}

Distances::Distances(const Position& position) : terrain_(position.bytTerrain) {
    for (std::size_t gait = 0; gait < gaitCount; ++gait) {
        std::array<std::uint8_t, squareCount> steps;
        for (std::uint8_t X = 1; X <= columnCount; ++X) {
            for (std::uint8_t Y = 1; Y <= rowCount; ++Y) {
                steps[IndexOf({X, Y})] =
                    CostOfStep(position, static_cast<Gait>(gait), position.bytTerrain[X][Y]);
            }
        }
        for (std::size_t from = 0; from < squareCount; ++from) {
            Spread(steps, from, costs_[gait][from]);
        }
    }
}

// Steps cost little, so that the squares of one cost after the other are gone through.
void Distances::Spread(const std::array<std::uint8_t, squareCount>& steps, std::size_t from,
                       Costs& costs) {
    costs.fill(unreachable);
    costs[from] = 0;
    const auto dearest = *std::max_element(steps.begin(), steps.end());
    const auto relax = [&](std::size_t at, std::size_t to) {
        const int cost = costs[at] + steps[to];
        if (steps[to] != 0 && cost < costs[to]) costs[to] = static_cast<std::uint8_t>(cost);
    };
    for (int cost = 0, idle = 0; idle <= dearest; ++cost) {
        ++idle;
        for (std::size_t at = 0; at < squareCount; ++at) {
            if (costs[at] != cost) continue;
            idle = 0;
            const std::size_t X = at % columnCount;
            if (X > 0) relax(at, at - 1);
            if (X + 1 < columnCount) relax(at, at + 1);
            if (at >= columnCount) relax(at, at - columnCount);
            if (at + columnCount < squareCount) relax(at, at + columnCount);
        }
    }
}

const Distances& DistancesFor(const Position& position) {
    thread_local std::unique_ptr<Distances> last;
    if (!last || !last->Fit(position)) last = std::make_unique<Distances>(position);
    return *last;
}

}  // namespace qarn
