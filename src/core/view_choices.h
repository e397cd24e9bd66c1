#pragma once

namespace qarn {

/// What a person has the window show beyond the game itself. With all of it off, the window is as
/// it always was.
struct ViewChoices {
    bool sides = false;            ///< whose each group is
    bool reach = false;            ///< where groups can go
    bool odds = false;             ///< what an attack would come to
    bool terrainPatterns = false;  ///< strokes over the colours of the terrain
    bool largeCodes = false;
    bool coordinates = false;
    bool lastMove = false;  ///< what the other side did last
    bool journal = false;   ///< beside the board
    bool roster = false;    ///< the same
    bool fullScreen = false;

    friend bool operator==(const ViewChoices&, const ViewChoices&) = default;
};

}  // namespace qarn
