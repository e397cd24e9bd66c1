#pragma once

#include <array>
#include <cstdint>

#include "core/position.h"

namespace qarn {

/// How a group gets about, as far as the cost of its steps goes.
enum class Gait : std::uint8_t { OnFoot, ByBoat, Climbing, Flying };
inline constexpr int gaitCount = 4;

/// How the people go when they go together.
Gait GaitOf(const Position& position, PeopleSet people);

/// The cheapest cost of a way between any two squares of a board, with nobody in the way.
/// (Dijkstra's shortest paths from every square.)
class Distances {
public:
    /// No way leads there.
    static constexpr std::uint8_t unreachable = 0xFF;

    /// Of the terrain of this position.
    explicit Distances(const Position& position);

    /// Mobility units from one square to another, the last step included; at most 254.
    std::uint8_t Between(Gait gait, Square from, Square to) const {
        return costs_[static_cast<std::size_t>(gait)][IndexOf(from)][IndexOf(to)];
    }

    /// True when they were made of this position's terrain.
    bool Fit(const Position& position) const { return position.bytTerrain == terrain_; }

private:
    static constexpr std::size_t squareCount = columnCount * rowCount;
    using Costs = std::array<std::uint8_t, squareCount>;

    static constexpr std::size_t IndexOf(Square square) {
        return (square.Y - 1u) * columnCount + square.X - 1u;
    }
    static void Spread(const std::array<std::uint8_t, squareCount>& steps, std::size_t from,
                       Costs& costs);

    decltype(Position::bytTerrain) terrain_;
    std::array<std::array<Costs, squareCount>, gaitCount> costs_;
};

/// The distances of a position's terrain; those asked for last are kept, one set a thread.
const Distances& DistancesFor(const Position& position);

}  // namespace qarn
