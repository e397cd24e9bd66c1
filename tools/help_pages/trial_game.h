#pragma once

#include <cstdint>

#include "core/game.h"
#include "core/no_desktop.h"

namespace qarn {

/// A game that nobody plays: the pages try out in it what the rules make of a position.
class TrialGame : private Dialogs, RandomNumbers, NoHelp, NoSettings, NoFileTypes {
public:
    /// An empty board of plain, with nobody on it.
    TrialGame();

    /// The starting position of scenario 1 to 12.
    explicit TrialGame(int scenario);

    /// The five-sided die shows this number from now on.
    void SetDie(int die) { die_ = die; }

    /// True once a question has been asked. Questions are answered with Yes.
    bool WasAsked() const { return asked_; }

    Game game;

private:
    Answer Show(const MessageBox& box) override;
    std::string AskSaveFileName(const std::string&) override { return {}; }
    std::string AskOpenFileName(const std::string&) override { return {}; }
    std::string InputPrompt(const std::string&, const std::string&, const std::string&) override {
        return {};
    }
    void Seed() override {}
    double Next() override { return (die_ - 0.5) / 5; }

    int die_ = 1;
    bool asked_ = false;
};

/// What becomes of an attack that has this many attack units more than the enemy has defense units.
struct Odds {
    int wins = 0;  ///< how many of the five numbers of the die win
    int ties = 0;
    int losses = 0;
    bool warns = false;  ///< the game asks first whether to go on

    friend bool operator==(const Odds&, const Odds&) = default;
};

/// Carries the attack out once for each number of the die.
Odds OddsOf(int difference);

/// The mobility units of a step onto the terrain for a group with these abilities that moves alone.
int CostOfStep(std::int16_t Ability1, std::int16_t Ability2, std::uint8_t terrain);

}  // namespace qarn
