#pragma once

#include <string>

namespace qarn {

struct Game;
struct GameRecord;

/// The text of the file of a game of a known scenario. Throws SaveError for what no file can hold.
std::string GameText(const GameRecord& record);

/// Notes the game's file as this program has read or written it.
void NoteGameFile(Game& game);

/// Writes the game to strGamePath. A game of an unknown scenario is not written. Where another
/// program has changed the file since it was noted, a box asks whether to replace it. Throws
/// SaveError with the reason; the old file is then untouched.
void SaveGame(Game& game);

/// SaveGame, reporting a failure in a box. Gives false when the game was not saved.
bool TrySaveGame(Game& game);

/// Closes the window: saves the game, then ends the program (throws ProgramEnd), unless blnLeaving
/// tells that it goes on with another window. When the game cannot be saved, the box asks whether
/// to leave without saving; No keeps the window open.
void Form_Unload(Game& game);

/// Closes the window where nobody can be asked, as when the person logs out: saves the game and
/// ends the program (throws ProgramEnd), with status 1 when it could not be saved.
[[noreturn]] void CloseWithoutBoxes(Game& game);

}  // namespace qarn
