#pragma once

#include <string>

namespace qarn {

struct Game;
struct HintMark;

/// True while a person is to choose what to do and nobody has moved yet in this turn: in a person's
/// turn, and in one of the computer's for which it found nothing.
bool IsHintOffered(const Game& game);

/// Play > Hint: wishes for a hint, which the front end has found and then shown.
void mnuHint_Click(Game& game);

/// Shows a hint: its arrow on the board and a sentence on the status line.
void PutHint(Game& game, const HintMark& mark, const std::string& sentence);

/// Takes the hint, or the wish for one, away.
void ForgetHint(Game& game);

/// The same, and its sentence from the status line if it still stands there.
void DropHint(Game& game);

}  // namespace qarn
