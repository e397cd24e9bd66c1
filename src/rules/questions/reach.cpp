#include "rules/questions/reach.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "rules/questions/occupancy.h"

namespace qarn {
namespace {

constexpr std::array<std::array<int, 2>, 4> directions{{{0, -1}, {1, 0}, {0, 1}, {-1, 0}}};

}  // namespace

ReachMap::ReachMap(const Position& position, const Occupancy& occupancy, const MovingGroup& group)
    : start_(group.at) {
    for (auto& column : index_) column.fill(unknown);
    Way from{.square = group.at, .before = {}};
    for (;;) {
        const int left = group.mobilityLeft - from.cost;
        for (const auto& [dX, dY] : directions) {
            const int X = from.square.X + dX;
            const int Y = from.square.Y + dY;
            if (left == 0 || from.joins || from.attack || !IsOnBoard(X, Y)) continue;
            const Square to{static_cast<std::uint8_t>(X), static_cast<std::uint8_t>(Y)};
            if (to == start_) continue;
            LookAt(AskStep(position, occupancy, {group.people, from.square, left}, to), from.square,
                   from.cost, to);
        }
        if (settled_ == count_) return;
        // The cheapest of those whose way may still become cheaper is settled next.
        std::size_t cheapest = settled_;
        for (std::size_t i = settled_; i < count_; ++i) {
            if (ways_[i].cost < ways_[cheapest].cost) cheapest = i;
        }
        std::swap(ways_[settled_], ways_[cheapest]);
        IndexOf(ways_[settled_].square) = static_cast<std::uint8_t>(settled_);
        IndexOf(ways_[cheapest].square) = static_cast<std::uint8_t>(cheapest);
        from = ways_[settled_++];
    }
}

void ReachMap::LookAt(const StepAnswer& step, Square from, int costSoFar, Square to) {
    const bool attack = step.result == StepResult::DirectAttack;
    if (!step.enters && !attack) return;
    const auto cost = static_cast<std::uint8_t>(costSoFar + step.cost);
    std::uint8_t& index = IndexOf(to);
    if (index == unknown) {
        index = static_cast<std::uint8_t>(count_++);
    } else if (ways_[index].cost <= cost) {
        return;
    }
    ways_[index] = {to, from, cost, step.result == StepResult::JoinedOwn, attack};
}

Path ReachMap::PathTo(Square square) const {
    std::array<Square, longestPath> reversed{};
    std::size_t count = 0;
    for (; square != start_; square = ways_[IndexOf(square)].before) reversed.at(count++) = square;
    Path path;
    while (count > 0) path.push_back(reversed[--count]);
    return path;
}

std::vector<ReachedSquare> ReachOf(const Position& position, const MovingGroup& group) {
    const ReachMap map(position, Occupancy(position), group);
    std::vector<ReachedSquare> reached;
    for (const ReachMap::Way& way : map) {
        Path path{group.at};
        for (const Square square : map.PathTo(way.square)) path.push_back(square);
        reached.push_back({way.square, way.cost, path, way.attack});
    }
    std::sort(reached.begin(), reached.end(), [](const ReachedSquare& a, const ReachedSquare& b) {
        return std::tie(a.cost, a.square.X, a.square.Y) < std::tie(b.cost, b.square.X, b.square.Y);
    });
    return reached;
}

}  // namespace qarn
