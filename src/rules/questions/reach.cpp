#include "rules/questions/reach.h"

#include <algorithm>
#include <array>
#include <optional>

namespace qarn {
namespace {

// Where the cheapest way known so far to a square comes from.
struct Way {
    int cost = 0;
    Square before;  // (0, 0): the group stands here
    bool open = true;
    bool ends = false;  // joins or attacks
    bool attack = false;
};
using Ways = std::array<std::array<std::optional<Way>, rowCount + 1>, columnCount + 1>;

std::optional<Way>& WayTo(Ways& ways, Square square) { return ways[square.X][square.Y]; }

// The open square with the cheapest way, column by column among equals; (0, 0) when none is left.
Square CheapestOpen(const Ways& ways) {
    Square cheapest;
    int cost = 0;
    for (std::uint8_t X = 1; X <= columnCount; ++X) {
        for (std::uint8_t Y = 1; Y <= rowCount; ++Y) {
            const std::optional<Way>& way = ways[X][Y];
            if (!way || !way->open || (cheapest != Square{} && way->cost >= cost)) continue;
            cheapest = {X, Y};
            cost = way->cost;
        }
    }
    return cheapest;
}

void LookAt(const Position& position, const MovingGroup& group, Square to, Ways& ways) {
    const StepAnswer step = AskStep(position, group, to);
    if (!step.enters && step.result != StepResult::DirectAttack) return;
    const int cost = WayTo(ways, group.at)->cost + step.cost;
    std::optional<Way>& known = WayTo(ways, to);
    if (known && known->cost <= cost) return;
    known = Way{.cost = cost,
                .before = group.at,
                .ends = step.result != StepResult::PlainStep,
                .attack = step.result == StepResult::DirectAttack};
}

void LookAround(const Position& position, const MovingGroup& group, Ways& ways) {
    constexpr std::array<std::array<int, 2>, 4> directions{{{0, -1}, {1, 0}, {0, 1}, {-1, 0}}};
    for (const auto& [dX, dY] : directions) {
        const int X = group.at.X + dX;
        const int Y = group.at.Y + dY;
        if (!IsOnBoard(X, Y)) continue;
        LookAt(position, group, {static_cast<std::uint8_t>(X), static_cast<std::uint8_t>(Y)}, ways);
    }
}

std::vector<Square> PathTo(Ways& ways, Square square) {
    std::vector<Square> path;
    for (; square != Square{}; square = WayTo(ways, square)->before) path.push_back(square);
    std::reverse(path.begin(), path.end());
    return path;
}

}  // namespace

std::vector<ReachedSquare> ReachOf(const Position& position, const MovingGroup& group) {
    std::vector<ReachedSquare> reached;
    Ways ways;
    WayTo(ways, group.at) = Way{};
    for (Square square = group.at; square != Square{}; square = CheapestOpen(ways)) {
        Way& way = *WayTo(ways, square);
        way.open = false;
        if (square != group.at) {
            reached.push_back({square, way.cost, PathTo(ways, square), way.attack});
        }
        const int left = group.mobilityLeft - way.cost;
        if (!way.ends && left > 0) LookAround(position, {group.people, square, left}, ways);
    }
    return reached;
}

}  // namespace qarn
