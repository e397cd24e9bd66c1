#pragma once

#include <string>

#include "core/ports.h"

namespace qarn {

/// What a box says that an opponent has answered: its name stands in place of "You", and its answer
/// behind a question.
std::string ToldOfOpponent(const std::string& name, const MessageBox& box, Answer answer);

/// That the computer, by its player's name, has found no move.
std::string ToldOfNoMove(const std::string& name);

}  // namespace qarn
