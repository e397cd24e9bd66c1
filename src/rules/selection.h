#pragma once

namespace qarn {

struct Game;

/// Takes the current square as the starting square of a move and lists its items in the check
/// boxes, all ticked. A square from which the side to move can not start is refused on the status
/// line.
void ChooseStart(Game& game);

/// Confirms the ticked items as those who move. A selection that can not move is refused on the
/// status line.
void ConfirmSelection(Game& game);

}  // namespace qarn
