#pragma once

#include <cstdint>
#include <vector>

#include "ai/opponents/evaluation.h"

namespace qarn {

/// A position that came up in a game, and what it turned out to be worth.
struct Lesson {
    Features features{};  ///< as the side to move sees it
    float target = 0;     ///< to the side to move, 0 to 1
};

/// Plays a game of the evaluation against itself in a scenario, 1 to 12, both sides taking the turn
/// that it rates best one ply ahead, or now and then any. Gives its positions with what the next
/// ones, and at last the result, made of them. (The lambda-return of temporal difference learning;
/// Sutton and Barto, "Reinforcement Learning", 2018, chapter 12.) The same seed gives the same
/// game.
std::vector<Lesson> PlayPracticeGame(int scenario, std::uint64_t seed, const Weights& weights);

}  // namespace qarn
