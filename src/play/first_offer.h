#pragma once

namespace qarn {

struct Game;

/// True in a person's first game, until the offer was answered: sides, reach, odds and the house
/// rule of own groups together.
bool IsOfferDue(const Game& game);

/// Whether it can be taken now, which house rules can between moves.
bool CanTakeOffer(const Game& game);

/// Takes the offer, for this game and those to come.
void TakeOffer(Game& game);

/// Makes no offer any more.
void EndOffer(Game& game);

}  // namespace qarn
