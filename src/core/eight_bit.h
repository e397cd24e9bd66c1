#pragma once

#include <cstdint>
#include <string_view>

#include "core/player_error.h"

namespace qarn {

/// A count, coordinate or sum of strengths did not fit its unsigned eight bits. what() says which.
class EightBitOverflow : public PlayerError {
public:
    using PlayerError::PlayerError;
};

/// Gives `value` as an unsigned 8-bit number. Throws EightBitOverflow, naming `what`, when it lies
/// outside 0 to 255: nothing in this game wraps around.
std::uint8_t EightBit(int value, std::string_view what);

}  // namespace qarn
