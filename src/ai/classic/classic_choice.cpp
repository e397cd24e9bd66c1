#include "ai/classic/classic_choice.h"

#include "ai/classic/paths.h"
#include "ai/classic/search_library.h"
#include "ai/classic/square_summary.h"
#include "ai/directions.h"
#include "rules/questions/start.h"

namespace qarn {
namespace {

// A decision: where the stack starts, and its path in direction codes.
struct March {
    Square start;
    PathSteps bytSteps;
    std::uint8_t bytLength;
};

Square SquareOf(const SquareSummary& summary) { return {summary.bytX, summary.bytY}; }

int DistanceBetween(const SquareSummary& A, const SquareSummary& B) {
    return DistanceBetween(SquareOf(A), SquareOf(B));
}

Direction DirectionOf(std::uint8_t stepCode, const SquareSummary& A, const SquareSummary& D) {
    if (stepCode == AlongX) return A.bytX <= D.bytX ? Right : Left;
    return A.bytY < D.bytY ? Down : Up;
}

// Turns the step codes into direction codes as it walks along them.
bool IsOpenPath(const Position& position, const SquareSummary& A, const SquareSummary& D,
                std::uint8_t bytLength, PathSteps& bytSteps) {
    Square square = SquareOf(A);
    int cost = 0;
    for (std::size_t k = 1; k <= bytLength; ++k) {
        bytSteps[k] = DirectionOf(bytSteps[k], A, D);
        MoveOneSquare(bytSteps[k], square.X, square.Y);
        const TerrainValues& kind = position.TerrainKinds.at(TerrainOf(position, square));
        cost += kind.Mobility;
        if (cost > A.bytTotalMobility) return false;
        if (A.bytTransportCount == 0 && kind.NeedsBoat) return false;
        if (square != SquareOf(D) && IsAnyGroupAt(position, square)) return false;
    }
    return true;
}

// The first open path from A to D; none when there is none within A's mobility.
std::optional<March> FindMarch(const Position& position, const SquareSummary& A,
                               const SquareSummary& D, PathTable& Paths) {
    if (DistanceBetween(A, D) > A.bytTotalMobility) return std::nullopt;
    const std::uint8_t L = EnumeratePaths(A.bytX, A.bytY, D.bytX, D.bytY, Paths);
    for (std::int16_t path = 1; path <= Paths[0].intCount; ++path) {
        PathSteps& bytSteps = Paths[static_cast<std::size_t>(path)].bytSteps;
        if (IsOpenPath(position, A, D, L, bytSteps)) return March{SquareOf(A), bytSteps, L};
    }
    return std::nullopt;
}

bool MayAttack(const Position& position, const SquareSummary& A, const SquareSummary& T) {
    const std::uint8_t terrain = TerrainOf(position, SquareOf(T));
    return DistanceBetween(A, T) > 0 &&
           A.bytTotalAttack - 8 >= T.bytTotalDefense + position.TerrainKinds.at(terrain).Defense;
}

bool MayJoin(const Position& position, const SquareSummary& A, const SquareSummary& B) {
    return !IsEnemyAt(position, SquareOf(B), position.bytTurn) &&
           A.bytGroupCount + B.bytGroupCount <= 4;
}

std::optional<March> FindAttack(const Position& position, const RankedSquares& Targets,
                                const RankedSquares& Stacks, PathTable& Paths) {
    for (const SquareSummary& T : Targets) {
        for (const SquareSummary& A : Stacks) {
            if (!MayAttack(position, A, T)) continue;
            if (const auto march = FindMarch(position, A, T, Paths)) return march;
        }
    }
    return std::nullopt;
}

std::optional<March> FindJoin(const Position& position, const RankedSquares& Stacks,
                              PathTable& Paths) {
    for (const SquareSummary& A : Stacks) {
        for (const SquareSummary& B : Stacks) {
            if (&A == &B || !MayJoin(position, A, B)) continue;
            if (const auto march = FindMarch(position, A, B, Paths)) return march;
        }
    }
    return std::nullopt;
}

Path PathOf(const March& march) {
    Path path;
    Square square = march.start;
    for (std::size_t k = 1; k <= march.bytLength; ++k) {
        MoveOneSquare(march.bytSteps[k], square.X, square.Y);
        path.push_back(square);
    }
    return path;
}

}  // namespace

std::optional<Plan> ChooseClassicMove(const Position& position, std::uint64_t, Thinking&) {
    const RankedSquares Targets = RankTargets(position, position.bytTurn);
    const RankedSquares Stacks = RankStacks(position, position.bytTurn);
    PathTable Paths;
    std::optional<March> march = FindAttack(position, Targets, Stacks, Paths);
    if (!march) march = FindJoin(position, Stacks, Paths);
    if (!march) return std::nullopt;
    return Plan{.kind = PlanKind::March,
                .start = march->start,
                .people = ListedOn(position, march->start),
                .path = PathOf(*march)};
}

}  // namespace qarn
