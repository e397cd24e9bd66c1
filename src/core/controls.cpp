#include "core/controls.h"

namespace qarn {

Controls::Controls() {
    const std::array<const char*, terrainKindCount> keyCaptions{
        "Plain", "Mountain", "Ocean",      "Stream",   "Sand",
        "Swamp", "Forest",   "Gallowrock", "Thornmere"};
    for (int code = 0; code < terrainKindCount; ++code) {
        const auto i = static_cast<std::size_t>(code);
        lblTerrKey[i] = {
            .Caption = keyCaptions[i], .Visible = code < Fortress, .Top = TerrKeyTop(code)};
        cmdSeeTerDet[i] = {.Caption = "...", .Visible = code < Fortress, .Top = TerrKeyTop(code)};
    }
}

}  // namespace qarn
