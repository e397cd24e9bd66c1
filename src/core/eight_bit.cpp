#include "core/eight_bit.h"

#include <string>

namespace qarn {

std::uint8_t EightBit(int value, std::string_view what) {
    if (value < 0 || value > 255) {
        throw EightBitOverflow("The " + std::string(what) + " would be " + std::to_string(value) +
                               ", which lies outside 0 to 255.");
    }
    return static_cast<std::uint8_t>(value);
}

}  // namespace qarn
