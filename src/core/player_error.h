#pragma once

#include <stdexcept>

namespace qarn {

/// Something that the person at the game can do something about, such as a file that cannot be
/// written. what() is for people. Anything else that is thrown is a fault of the program.
class PlayerError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}  // namespace qarn
