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

/// The terrain details button of code 0 to 8: shows the description of its terrain, or hides it
/// when it is showing.
void cmdSeeTerDet_Click(Game& game, int code);

}  // namespace qarn
