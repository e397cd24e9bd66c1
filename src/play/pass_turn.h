#pragma once

namespace qarn {

struct Game;

/// Passes the turn, as pressing Move, confirming a group and Done Moving at once does. A side that
/// has nothing but a lone bird over water returns it instead, and keeps the turn.
void PassTurn(Game& game);

/// Play > Pass Turn: asks, then passes.
void mnuPassTurn_Click(Game& game);

}  // namespace qarn
