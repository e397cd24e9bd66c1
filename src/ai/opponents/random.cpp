#include "ai/opponents/random.h"

#include "ai/opponents/turns.h"
#include "core/random_numbers.h"

namespace qarn {

std::optional<Plan> ChooseRandomTurn(const Position& position, std::uint64_t seed, Thinking&) {
    std::vector<Plan> turns;
    ListTurns(position, turns);
    UniformGenerator chance;
    chance.Seed(seed);
    return turns[static_cast<std::size_t>(chance.Next() * static_cast<double>(turns.size()))];
}

}  // namespace qarn
