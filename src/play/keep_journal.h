#pragma once

#include <string>

namespace qarn {

struct Game;
struct Journal;

/// The journal of a game that has just been opened: what is kept for it, if the game stands as it
/// did then, and its event of opening.
Journal JournalOf(const Game& game);

/// Adds what an event has brought about, house rules that it has changed too, and forgets the kept
/// journal of a game that is over and whose file is gone.
void FollowEvent(Journal& journal, const Game& game);

/// Keeps the journal of a game that is being saved, in the person's data folder, if it can.
void KeepJournal(const Journal& journal, const Game& game);

/// Writes the journal to a text file, for people. Throws PlayerError when it cannot.
void ExportJournal(const std::string& path, const Journal& journal, const Game& game);

}  // namespace qarn
