#pragma once

#include "core/game.h"
#include "core/no_desktop.h"

namespace qarn {

/// A game that nobody plays: the pages show what its record and controls hold.
class TrialGame : private Dialogs, RandomNumbers, NoHelp, NoSettings, NoFileTypes {
public:
    /// An empty board of plain, with nobody on it.
    TrialGame();

    /// The starting position of scenario 1 to 12.
    explicit TrialGame(int scenario);

    Game game;

private:
    Answer Ask(const MessageBox&) override { return Answer::OK; }
    void ShowAnswered(const MessageBox&, Answer) override {}
    std::string AskSaveFileName(const std::string&) override { return {}; }
    std::string AskOpenFileName(const std::string&) override { return {}; }
    std::string InputPrompt(const std::string&, const std::string&, const std::string&) override {
        return {};
    }
    void Seed() override {}
    double Next() override { return 0; }
};

}  // namespace qarn
