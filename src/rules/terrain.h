#pragma once

#include <cstdint>

#include "core/game.h"

namespace qarn {

/// Fills terrain kinds 0 to 6 with their values. Runs before the scenario's setup, which fills the
/// landmark kinds.
void InitTerrainKinds(GameRecord& record);

/// Gives one square the background and text colours of its terrain.
void PaintSquare(Game& game, int X, int Y);

/// The background and text colours of a terrain code, 0 to 8.
struct TerrainColors {
    Color BackColor;
    Color ForeColor;
};
TerrainColors ColorsOfTerrain(std::uint8_t code);

/// Terrain code 0 and white with navy text for every square.
void ClearBoard(Game& game);

/// True for ocean and stream.
inline bool IsWater(std::uint8_t code) { return code == Ocean || code == Stream; }

/// What the terrain of a square makes of an attack.
struct TerrainEffect {
    std::uint8_t bytAttackOut = 0;
    std::uint8_t bytDefenseOut = 0;
    bool blnAllowed = true;
};

/// The effect of the terrain of square (X, Y) on the units given. `blnDefending`: the group that
/// stands there is attacked; `blnDirect`: by a group that steps into the square. Throws
/// EightBitOverflow when a sum passes 255.
TerrainEffect TerrainModifiers(const GameRecord& record, int X, int Y, bool blnDefending,
                               std::uint8_t bytAttack, std::uint8_t bytDefense, bool blnDirect);

/// The terrain details button of code 0 to 8: shows the description of its terrain, or hides it
/// when it is showing.
void cmdSeeTerDet_Click(Game& game, int code);

}  // namespace qarn
