#pragma once

#include <string>

namespace qarn {

struct Game;

/// What the ticked boxes of a choice come to, while sides are shown: the sum of their strengths and
/// then each name with its own mobility, attack and defense, one a line. Empty otherwise, where
/// nothing is to be chosen, and where a sum would pass 255.
std::string ToldOfTicked(const Game& game);

}  // namespace qarn
