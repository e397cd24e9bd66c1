#pragma once

namespace qarn {

struct Game;

/// Called when an opponent that looks ahead is to choose its turn: where the game is locked, it
/// offers a draw. A person's yes ends the game as a victory does (throws ProgramEnd); after a no it
/// is not offered again before the game has been locked anew. Two such opponents agree with each
/// other: then the game stays open, they rest, and this gives true.
bool AgreesOnDraw(Game& game);

/// Whether the opponent takes a draw that the person to move offers: where the game is locked, or
/// where it thinks that it stands worse. Classic takes none.
bool TakesDraw(const Game& game);

}  // namespace qarn
