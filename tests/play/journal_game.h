#pragma once

#include <string>

#include "play/game_journal.h"
#include "play/tell_journal.h"
#include "support/played_game.h"

namespace qarn {

/// A game whose journal is kept, as a front end keeps it.
class JournalGame : public PlayedGame {
public:
    explicit JournalGame(const std::string& position) {
        game.ports.folders.userData = folder / "data";
        game.afterSave = [this] { journal.Keep(game); };
        Load(position);
        journal.Open(game);
    }

    void OpenAgain() {
        Open();
        journal.Open(game);
    }

    /// Follows what is done.
    void DoAll(const std::string& commands) {
        for (const std::string& command : Parts(commands)) {
            EXPECT_TRUE(Do(command)) << command;
            if (command.starts_with("roll") || command.starts_with("answer")) continue;
            command == "reopen" ? journal.Open(game) : journal.Follow(game, history);
        }
    }

    std::string Told() const {
        std::string text;
        for (const std::string& line : TellJournal(journal.Told(), game)) text += line + "\n";
        return text;
    }

    GameJournal journal;
};

}  // namespace qarn
