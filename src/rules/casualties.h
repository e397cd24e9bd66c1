#pragma once

#include <cstdint>

#include "core/happenings.h"
#include "core/people_set.h"

namespace qarn {

struct Game;

/// Lists the people of the attacking square in the check boxes, so that the player picks the
/// character that died. Gives false, and changes nothing, when no character stands there.
bool StartCasualtyChoice(Game& game);

/// Confirms the casualty choice with the check boxes as they stand: removes the character, ends the
/// attack and the move that led to it, and passes the turn.
void ConfirmCasualty(Game& game);

/// Takes people of one square off the board and shows the square again.
void EliminateAll(Game& game, PeopleSet people);

/// Recounts the groups left of both sides and ends the game when a side has none.
void CountPeople(Game& game);

/// Shows the victory text of the side that still has groups, deletes the game file and ends the
/// program (throws ProgramEnd).
void EndGame(Game& game);

/// The same for a game that a side has won, whoever is left.
void EndWonGame(Game& game, Ended end);

/// Tells that the game is a draw.
void TellDraw(Game& game);

/// The same, and ends the game as a victory does.
void EndDrawnGame(Game& game);

}  // namespace qarn
