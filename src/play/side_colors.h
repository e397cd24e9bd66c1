#pragma once

#include <cstdint>

#include "core/controls.h"

namespace qarn {

/// What tells whose a code is: the colours behind, around and of it.
struct SideColors {
    Color fill;
    Color edge;
    Color text;
};

/// The colours of side 1, side 2 or transport pieces (0).
constexpr SideColors ColorsOfSide(std::uint8_t side) {
    if (side == 1) return {{0xFFFFFF}, {0x106020}, {0x004000}};
    if (side == 2) return {{0x281010}, {0xFFC0C0}, {0xFFFFFF}};
    return {{0xD8C098}, {0x604010}, {0x402800}};
}

}  // namespace qarn
