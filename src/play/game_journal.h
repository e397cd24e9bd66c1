#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "play/journal.h"

namespace qarn {

class TurnHistory;

/// The journal of the game that a front end has open, kept up to date with it.
class GameJournal {
public:
    const Journal& Told() const { return journal_; }

    /// Begins with a game that has just been opened: what is kept for it, if the game stands as it
    /// did then, and the event of opening it.
    void Open(const Game& game);

    /// Adds what an event has brought about, house rules that it has changed too, or cuts off what
    /// it has taken back, and where the computer found no move. Keeps it at each change of turn for
    /// the game that a crash would leave to be recovered. Forgets what is kept of a game that is
    /// over and whose file is gone.
    void Follow(const Game& game, const TurnHistory& history);

    /// Adds what an opponent, by its name, has been asked and has answered in the event under way.
    void NoteSaid(std::string_view opponent, const MessageBox& box, Answer answer);

    /// Keeps it in the person's data folder, if it can, for a game that is being saved.
    void Keep(const Game& game) const;

    /// Writes it to a text file, for people. Throws PlayerError when it cannot.
    void Export(const std::string& path, const Game& game) const;

private:
    void Cut(std::size_t size);

    Journal journal_;
    std::size_t size_ = 0;            // before the event that is to come
    std::vector<std::size_t> sizes_;  // before each event that can be taken back
};

}  // namespace qarn
