#include "ai/opponents/random.h"

#include "ai/opponents/turns.h"
#include "core/random_numbers.h"

namespace qarn {

std::optional<Plan> ChooseRandomTurn(const Position& position, std::uint64_t seed, Thinking&) {
    std::vector<Turn> turns;
    ListTurns(position, turns);
    UniformGenerator chance;
    chance.Seed(seed);
    const auto count = static_cast<double>(turns.size());
    return PlanOf(position, turns[static_cast<std::size_t>(chance.Next() * count)]);
}

}  // namespace qarn
