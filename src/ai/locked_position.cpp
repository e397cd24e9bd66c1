#include "ai/locked_position.h"

#include <algorithm>

#include "ai/opponents/evaluation.h"

namespace qarn {
namespace {

std::array<float, 3> EvaluationsOf(Position position) {
    std::array<float, 3> values{};
    for (std::uint8_t side = 1; side <= 2; ++side) {
        position.bytTurn = side;
        values[side] = Evaluate(position, DistancesFor(position), learnedWeights);
    }
    return values;
}

}  // namespace

void NoteEvaluations(Standstill& standstill, const Position& position) {
    const std::array<float, 3> values = EvaluationsOf(position);
    bool moved = false;
    for (std::size_t side = 1; side <= 2 && standstill.measured; ++side) {
        float& lowest = standstill.lowest[side];
        float& highest = standstill.highest[side];
        lowest = std::min(lowest, values[side]);
        highest = std::max(highest, values[side]);
        moved = moved || highest - lowest > evaluationAtRest;
    }
    if (standstill.measured && !moved) return;
    if (moved) standstill.turns = 1;
    standstill.measured = true;
    standstill.lowest = standstill.highest = values;
}

// The turn that begins is one of those counted.
bool IsLocked(const Standstill& standstill) { return standstill.turns > turnsOfALock; }

}  // namespace qarn
