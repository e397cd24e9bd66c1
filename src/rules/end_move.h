#pragma once

#include "core/game_record.h"

namespace qarn {

/// Clears the state of the move in progress: whatever it was, and whoever began it, it is over.
inline void EndMove(GameRecord& record) {
    record.blnMoveMode = false;
    record.blnMoveUnderWay = false;
    record.blnChoosing = false;
    record.blnMoveFinished = false;
    record.Action.blnOwnMove = false;
}

}  // namespace qarn
