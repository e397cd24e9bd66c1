#pragma once

#include <string>

namespace qarn {

struct Game;
struct GameRecord;

/// Opens the game window on the game file `strGamePath` (absolute): loads it, draws the board and
/// starts the turn. A file that cannot be loaded is reported in a box with Retry and Cancel; Cancel
/// ends the program (throws ProgramEnd).
void Form_Load(Game& game, const std::string& strGamePath);

/// Writes the scenario's title and the file's name into the window's caption. The title of an
/// unknown scenario is the caption as it stands.
void ComposeCaption(Game& game);

/// Appends both players, in parentheses, to the caption.
void AppendPlayersToCaption(Game& game);

/// True for a game of a scenario that this program knows. Any other is shown with an empty board
/// and never written.
bool IsKnownScenario(const GameRecord& record);

}  // namespace qarn
