#pragma once

#include <string>

namespace qarn {

struct Game;

/// Writes the game to strGamePath. A game of an unknown scenario is not written. Throws SaveError
/// with the reason; the old file is then untouched.
void SaveGame(const Game& game);

/// SaveGame, reporting a failure in a box. Gives false after one.
bool TrySaveGame(Game& game);

/// Closes the window: saves the game, then ends the program (throws ProgramEnd), unless blnLeaving
/// tells that it goes on with another window. When the game cannot be saved, the box asks whether
/// to leave without saving; No keeps the window open.
void Form_Unload(Game& game);

/// Closes the window where nobody can be asked, as when the person logs out: saves the game and
/// ends the program (throws ProgramEnd), with status 1 when it could not be saved.
[[noreturn]] void CloseWithoutBoxes(Game& game);

}  // namespace qarn
