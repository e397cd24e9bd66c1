#include "ai/classic/square_summary.h"

#include <algorithm>

#include "ai/classic/search_library.h"
#include "core/eight_bit.h"

namespace qarn {
namespace {

SquareSummary* FindSquare(RankedSquares& ranked, const Group& people) {
    SquareSummary* first = ranked.squares.data() + 1;
    SquareSummary* last = first + ranked.count;
    SquareSummary* found = std::find_if(first, last, [&](const SquareSummary& square) {
        return square.bytX == people.LocationX && square.bytY == people.LocationY;
    });
    return found == last ? nullptr : found;
}

SquareSummary* AppendSquare(RankedSquares& ranked, const Group& people) {
    SquareSummary& square = ranked.squares.at(++ranked.count);
    square.bytX = people.LocationX;
    square.bytY = people.LocationY;
    return &square;
}

void AddTo(SquareSummary& square, const Group& people) {
    if (IsTransport(people)) {
        ++square.bytTransportCount;
        return;
    }
    const auto add = [](std::uint8_t& total, std::uint8_t units) {
        total = EightBit(total + units, "sum of the units of a square");
    };
    add(square.bytTotalMobility, people.Mobility);
    add(square.bytTotalAttack, people.Attack);
    add(square.bytTotalDefense, people.Defense);
    ++square.bytGroupCount;
}

void Rank(RankedSquares& ranked) {
    for (std::size_t k = 1; k <= ranked.count; ++k) ranked.intScore[k] = ScoreOf(ranked.squares[k]);
    SortDescending(ranked.intScore, ranked.squares, ranked.count);
}

}  // namespace

// Counted in quarters, so that no half is lost to rounding.
std::int16_t ScoreOf(const SquareSummary& square) {
    const int quarters = 5 * square.bytTotalDefense + 6 * square.bytTotalAttack +
                         4 * square.bytTotalMobility + 2 * square.bytTransportCount +
                         3 * square.bytGroupCount;
    const int whole = quarters / 4;
    const int rest = quarters % 4;
    const bool up = rest == 3 || (rest == 2 && whole % 2 != 0);
    return static_cast<std::int16_t>(up ? whole + 1 : whole);
}

RankedSquares RankTargets(const Position& position, std::uint8_t side) {
    RankedSquares Targets;
    for (std::size_t i = 1; i <= peopleCount; ++i) {
        const Group& people = position.People[i];
        if (!OnBoard(people) || people.Side == side) continue;
        SquareSummary* square = FindSquare(Targets, people);
        if (square == nullptr && IsTransport(people)) continue;
        if (square == nullptr) square = AppendSquare(Targets, people);
        AddTo(*square, people);
    }
    Rank(Targets);
    return Targets;
}

RankedSquares RankStacks(const Position& position, std::uint8_t side) {
    RankedSquares Stacks;
    for (std::size_t i = 1; i <= peopleCount; ++i) {
        const Group& people = position.People[i];
        if (!OnBoard(people) || (people.Side != side && !IsTransport(people))) continue;
        SquareSummary* square = FindSquare(Stacks, people);
        if (square == nullptr) square = AppendSquare(Stacks, people);
        AddTo(*square, people);
    }
    Rank(Stacks);
    return Stacks;
}

}  // namespace qarn
