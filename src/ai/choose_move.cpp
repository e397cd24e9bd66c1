#include "ai/choose_move.h"

#include <cstdlib>
#include <optional>

#include "ai/action.h"
#include "ai/directions.h"
#include "ai/paths.h"
#include "ai/search_library.h"
#include "ai/square_summary.h"

namespace qarn {
namespace {

// A decision: where the stack starts, and its path in direction codes.
struct March {
    std::uint8_t bytX;
    std::uint8_t bytY;
    PathSteps bytSteps;
    std::uint8_t bytLength;
};

int DistanceBetween(const SquareSummary& A, const SquareSummary& B) {
    return std::abs(A.bytX - B.bytX) + std::abs(A.bytY - B.bytY);
}

Direction DirectionOf(std::uint8_t stepCode, const SquareSummary& A, const SquareSummary& D) {
    if (stepCode == AlongX) return A.bytX <= D.bytX ? Right : Left;
    return A.bytY < D.bytY ? Down : Up;
}

// Turns the step codes into direction codes as it walks along them.
bool IsOpenPath(const GameRecord& record, const SquareSummary& A, const SquareSummary& D,
                std::uint8_t bytLength, PathSteps& bytSteps) {
    std::size_t X = A.bytX;
    std::size_t Y = A.bytY;
    int cost = 0;
    for (std::size_t k = 1; k <= bytLength; ++k) {
        bytSteps[k] = DirectionOf(bytSteps[k], A, D);
        MoveOneSquare(bytSteps[k], X, Y);
        const TerrainKindRecord& kind = record.TerrainKinds.at(record.bytTerrain[X][Y]);
        cost += kind.Mobility;
        if (cost > A.bytTotalMobility) return false;
        if (A.bytTransportCount == 0 && kind.NeedsBoat) return false;
        const bool destination = X == D.bytX && Y == D.bytY;
        if (!destination && IsAnyGroupAt(record.People, static_cast<int>(X), static_cast<int>(Y))) {
            return false;
        }
    }
    return true;
}

// The first open path from A to D; none when there is none within A's mobility.
std::optional<March> FindMarch(const GameRecord& record, const SquareSummary& A,
                               const SquareSummary& D, PathTable& Paths) {
    if (DistanceBetween(A, D) > A.bytTotalMobility) return std::nullopt;
    const std::uint8_t L = EnumeratePaths(A.bytX, A.bytY, D.bytX, D.bytY, Paths);
    for (std::int16_t path = 1; path <= Paths[0].intCount; ++path) {
        PathSteps& bytSteps = Paths[static_cast<std::size_t>(path)].bytSteps;
        if (IsOpenPath(record, A, D, L, bytSteps)) return March{A.bytX, A.bytY, bytSteps, L};
    }
    return std::nullopt;
}

bool MayAttack(const GameRecord& record, const SquareSummary& A, const SquareSummary& T) {
    const std::uint8_t terrain = record.bytTerrain[T.bytX][T.bytY];
    return DistanceBetween(A, T) > 0 &&
           A.bytTotalAttack - 8 >= T.bytTotalDefense + record.TerrainKinds.at(terrain).Defense;
}

bool MayJoin(const GameRecord& record, const SquareSummary& A, const SquareSummary& B) {
    return !IsEnemyAt(record.People, B.bytX, B.bytY, record.bytTurn) &&
           A.bytGroupCount + B.bytGroupCount <= 4;
}

std::optional<March> FindAttack(const GameRecord& record, const RankedSquares& Targets,
                                const RankedSquares& Stacks, PathTable& Paths) {
    for (const SquareSummary& T : Targets) {
        for (const SquareSummary& A : Stacks) {
            if (!MayAttack(record, A, T)) continue;
            if (const auto march = FindMarch(record, A, T, Paths)) return march;
        }
    }
    return std::nullopt;
}

std::optional<March> FindJoin(const GameRecord& record, const RankedSquares& Stacks,
                              PathTable& Paths) {
    for (const SquareSummary& A : Stacks) {
        for (const SquareSummary& B : Stacks) {
            if (&A == &B || !MayJoin(record, A, B)) continue;
            if (const auto march = FindMarch(record, A, B, Paths)) return march;
        }
    }
    return std::nullopt;
}

}  // namespace

void ChooseMove(Game& game) {
    const GameRecord& record = game.record;
    const RankedSquares Targets = RankTargets(record, record.bytTurn);
    const RankedSquares Stacks = RankStacks(record, record.bytTurn);
    PathTable Paths;
    std::optional<March> march = FindAttack(record, Targets, Stacks, Paths);
    if (!march) march = FindJoin(record, Stacks, Paths);
    if (!march) {
        game.ports.dialogs.Tell("No good move!");
        return;
    }
    StartAction(game, march->bytX, march->bytY, march->bytSteps, march->bytLength);
}

}  // namespace qarn
