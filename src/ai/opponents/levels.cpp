#include "ai/opponents/levels.h"

#include "ai/opponents/search.h"
#include "core/random_numbers.h"

namespace qarn {
namespace {

constexpr double errs = 1.0 / 4;
constexpr SearchLimits captainsLimits{
    .plies = 2, .turns = 8, .passes = 0.5F, .pressesAlways = false, .positions = 100'000};
constexpr SearchLimits warlordsLimits{.plies = 3,
                                      .turns = 40,
                                      .replies = 10,
                                      .turnsAlike = 4,
                                      .repliesAlike = 2,
                                      .passes = 0.1F,
                                      .waryWhenStronger = true,
                                      .positions = 400'000};

}  // namespace

std::optional<Plan> ChooseScoutTurn(const Position& position, std::uint64_t seed,
                                    Thinking& thinking) {
    UniformGenerator chance;
    chance.Seed(seed);
    Search search(position, learnedWeights, thinking);
    const std::vector<RatedTurn> turns = search.RateTurns();
    if (chance.Next() >= errs) return PlanOf(position, turns.front().turn);
    const std::size_t half = (turns.size() + 1) / 2;
    const auto drawn = static_cast<std::size_t>(chance.Next() * static_cast<double>(half));
    return PlanOf(position, turns[drawn].turn);
}

std::optional<Plan> ChooseCaptainTurn(const Position& position, std::uint64_t, Thinking& thinking) {
    Search search(position, learnedWeights, thinking);
    return PlanOf(position, search.Best(captainsLimits));
}

std::optional<Plan> ChooseWarlordTurn(const Position& position, std::uint64_t, Thinking& thinking) {
    Search search(position, learnedWeights, thinking);
    return PlanOf(position, search.Best(warlordsLimits));
}

}  // namespace qarn
