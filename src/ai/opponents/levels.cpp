#include "ai/opponents/levels.h"

#include "ai/opponents/search.h"
#include "core/random_numbers.h"

namespace qarn {
namespace {

constexpr double errs = 1.0 / 8;
constexpr SearchWidth captainsWidth{.replies = 24};
constexpr SearchWidth warlordsWidth{.replies = 12, .followUps = 4};

}  // namespace

std::optional<Plan> ChooseScoutTurn(const Position& position, std::uint64_t seed) {
    UniformGenerator chance;
    chance.Seed(seed);
    const std::vector<RatedTurn> turns = Search(position, learnedWeights).RateTurns(position);
    if (chance.Next() >= errs) return turns.front().plan;
    const auto half = static_cast<double>((turns.size() + 1) / 2);
    return turns[static_cast<std::size_t>(chance.Next() * half)].plan;
}

std::optional<Plan> ChooseCaptainTurn(const Position& position, std::uint64_t) {
    return Search(position, learnedWeights).Best(position, captainsWidth).plan;
}

std::optional<Plan> ChooseWarlordTurn(const Position& position, std::uint64_t) {
    return Search(position, learnedWeights).Best(position, warlordsWidth).plan;
}

}  // namespace qarn
