#pragma once

#include <cstdint>
#include <span>

#include "core/game.h"

namespace qarn {

/// Lists the people of the attacking square in the check boxes, so that the player picks the
/// character that died. Gives false, and changes nothing, when no character stands there.
bool StartCasualtyChoice(Game& game);

/// Confirms the casualty choice with the check boxes as they stand: removes the character, ends the
/// attack and the move that led to it, and passes the turn.
void ConfirmCasualty(Game& game);

/// The computer's casualty: the place, counted from 1 among the people of the square, of the
/// character with the smallest attack and defense together; 1 when there is none below 100.
std::uint8_t ChooseDeadAnimal(const GameRecord& record, int X, int Y);

/// The same among the people of a list, of which each entry is one place.
std::uint8_t ChooseDeadAnimal(const GameRecord& record, std::span<const std::uint8_t> list);

/// Takes roster entry i off the board and shows the square where it stood again.
void Eliminate(Game& game, std::uint8_t i);

/// Recounts the groups left of both sides and ends the game when a side has none.
void CountPeople(Game& game);

/// Shows the winner's victory text, deletes the game file and ends the program (throws ProgramEnd).
void EndGame(Game& game);

}  // namespace qarn
