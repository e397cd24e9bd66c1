#pragma once

#include <stdexcept>

namespace qarn {

/// A failure that the player should read of, such as a file that cannot be written. what() is a
/// sentence for people. Whatever else is thrown is a fault of the program.
class PlayerError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A question that cannot go without an answer got none, as nobody is there.
class NobodyAnswers : public PlayerError {
public:
    using PlayerError::PlayerError;
};

}  // namespace qarn
