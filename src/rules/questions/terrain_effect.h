#pragma once

#include <cstdint>

#include "core/position.h"

namespace qarn {

/// What the terrain of a square makes of an attack.
struct TerrainEffect {
    std::uint8_t bytAttackOut = 0;
    std::uint8_t bytDefenseOut = 0;
    bool blnAllowed = true;
};

/// The effect of the terrain of a square on the units given. `blnDefending`: the group that stands
/// there is attacked; `blnDirect`: by a group that steps into the square. Throws EightBitOverflow
/// when a sum passes 255.
TerrainEffect TerrainModifiers(const Position& position, Square square, bool blnDefending,
                               std::uint8_t bytAttack, std::uint8_t bytDefense, bool blnDirect);

}  // namespace qarn
