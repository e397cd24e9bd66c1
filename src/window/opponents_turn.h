#pragma once

#include <cstddef>

namespace qarn {

struct Game;
struct GameRecord;
struct OpponentChoice;
struct WindowButton;

/// True while the move or attack that the computer's action began goes on.
bool IsOwnMoveUnderWay(const GameRecord& record);

/// True while the computer plays its turn; false once it has found nothing to do.
bool HasTurnInHand(const Game& game);

/// True while a person has begun a move or an attack and not ended it.
bool IsPersonsMoveUnderWay(const GameRecord& record);

/// True while a person can begin a move or an attack, their own or one for the computer that rests:
/// nobody's is under way, and nothing is looked at.
bool IsPersonToBegin(const Game& game);

/// The same, for the computer that found nothing to do.
bool HasFoundNoMove(const Game& game);

/// True while a person can begin one in a turn of their own.
bool IsPersonToBeginOwn(const Game& game);

/// True in a person's turn.
bool IsPersonsTurn(const Game& game);

/// True while an opponent that answers for itself has its turn in hand, be it that it thinks or
/// acts. What would meddle with it waits; looking, leaving and saving do not.
bool OpponentActs(const Game& game);

/// Whether a click on a square is taken: while an opponent acts, only to look.
bool TakesClicks(const Game& game);

/// Whether a button is left to the person: while an opponent acts, only the one for looking.
bool TakesPress(const Game& game, const WindowButton& button);

/// Has an opponent play a side, 1 or 2, while the computer does, from its next choice on. In the
/// side's turn the computer takes up play again, where it had found nothing to do; it also does
/// after a draw.
void ChooseOpponent(Game& game, std::size_t side, const OpponentChoice& opponent);

}  // namespace qarn
