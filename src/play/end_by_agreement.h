#pragma once

namespace qarn {

struct Game;

/// Play > Resign: asks, then ends the game as a victory of the other side does (throws ProgramEnd).
void mnuResign_Click(Game& game);

/// Play > Offer Draw: asks the other player, whose yes ends the game as a victory does (throws
/// ProgramEnd). An opponent decides for itself, once the person has said that the offer is meant.
void mnuOfferDraw_Click(Game& game);

}  // namespace qarn
