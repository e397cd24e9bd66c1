#include "core/fingerprint.h"

#include <cstdint>

namespace qarn {

std::string Fingerprint(std::string_view text) {
    std::uint64_t hash = 0xcbf29ce484222325;
    for (const char character : text) {
        hash = (hash ^ static_cast<std::uint8_t>(character)) * 0x100000001b3;
    }
    std::string digits(16, '0');
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit, hash >>= 4) {
        *digit = "0123456789abcdef"[hash & 0xF];
    }
    return digits;
}

}  // namespace qarn
