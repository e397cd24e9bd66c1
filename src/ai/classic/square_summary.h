#pragma once

#include <array>
#include <cstdint>

#include "core/position.h"

namespace qarn {

/// The totals of one side's pieces on one square.
struct SquareSummary {
    std::uint8_t bytX = 0;
    std::uint8_t bytY = 0;
    std::uint8_t bytTotalMobility = 0;
    std::uint8_t bytTotalAttack = 0;
    std::uint8_t bytTotalDefense = 0;
    std::uint8_t bytGroupCount = 0;      ///< characters counted
    std::uint8_t bytTransportCount = 0;  ///< transport pieces counted
};

/// What the square is worth to the computer, rounded to a whole number, halves to the even one.
std::int16_t ScoreOf(const SquareSummary& square);

/// Up to 24 squares, the one worth most first. Used from index 1.
struct RankedSquares {
    std::array<SquareSummary, peopleCount + 1> squares;
    std::array<std::int16_t, peopleCount + 1> intScore{};
    std::size_t count = 0;

    const SquareSummary* begin() const { return squares.data() + 1; }
    const SquareSummary* end() const { return begin() + count; }
};

/// The squares with characters of the opponent of `side`. A transport piece counts where a
/// character of its square comes before it in the roster. Throws EightBitOverflow when a total
/// passes 255.
RankedSquares RankTargets(const Position& position, std::uint8_t side);

/// The squares with characters of `side`, and those with transport pieces, whoever else stands
/// there. Throws EightBitOverflow when a total passes 255.
RankedSquares RankStacks(const Position& position, std::uint8_t side);

}  // namespace qarn
