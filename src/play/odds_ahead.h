#pragma once

#include <optional>
#include <string>

#include "play/odds_told.h"

namespace qarn {

struct Game;

/// What an attack on a square would come to by those who have been chosen to attack, or by the
/// group in move once it has come beside it, the cheapest way. None while nobody is, and where no
/// enemy stands that they can attack, nor anything that burns down.
std::optional<AttackOdds> OddsAhead(const GameRecord& record, Square square);

/// The same in words, for a person; empty while odds are not shown, while the computer acts, and
/// where a sum would pass 255.
std::string OddsAheadTold(const Game& game, Square square);

}  // namespace qarn
