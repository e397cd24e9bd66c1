#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "play/journal.h"
#include "play/keep_journal.h"
#include "play/tell_journal.h"
#include "support/played_game.h"

namespace qarn {

/// A game whose journal is kept, as a front end keeps it.
class JournalGame : public PlayedGame {
public:
    explicit JournalGame(const std::string& position) {
        game.ports.folders.userData = folder / "data";
        game.afterSave = [this] { KeepJournal(journal, game); };
        Load(position);
        journal = JournalOf(game);
    }

    void OpenAgain() {
        Open();
        journal = JournalOf(game);
    }

    /// Commands of PlayedGame, separated by "; ".
    void DoAll(const std::string& commands) {
        std::istringstream parts(commands);
        for (std::string command; std::getline(parts >> std::ws, command, ';');) {
            game.happenings.clear();  // not every command is an event
            EXPECT_TRUE(Do(command)) << command;
            FollowEvent(journal, game);
        }
    }

    std::string Told() const {
        std::string text;
        for (const std::string& line : TellJournal(journal, game)) text += line + "\n";
        return text;
    }

    Journal journal;
};

}  // namespace qarn
