#include "ai/opponents/levels.h"

#include "ai/opponents/search.h"
#include "core/random_numbers.h"

namespace qarn {
namespace {

constexpr double errs = 1.0 / 8;
constexpr SearchWidth captainsWidth{.replies = 24};
constexpr SearchWidth warlordsWidth{.replies = 12, .followUps = 4};

}  // namespace

std::optional<Plan> ChooseScoutTurn(const Position& position, std::uint64_t seed,
                                    Thinking& thinking) {
    UniformGenerator chance;
    chance.Seed(seed);
    Search search(position, learnedWeights, thinking);
    const std::vector<RatedTurn> turns = search.RateTurns(position);
    if (chance.Next() >= errs) return turns.front().plan;
    const auto half = static_cast<double>((turns.size() + 1) / 2);
    return turns[static_cast<std::size_t>(chance.Next() * half)].plan;
}

std::optional<Plan> ChooseCaptainTurn(const Position& position, std::uint64_t, Thinking& thinking) {
    return Search(position, learnedWeights, thinking).Best(position, captainsWidth).plan;
}

std::optional<Plan> ChooseWarlordTurn(const Position& position, std::uint64_t, Thinking& thinking) {
    return Search(position, learnedWeights, thinking).Best(position, warlordsWidth).plan;
}

}  // namespace qarn
