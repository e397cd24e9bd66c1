#include "help_pages/trial_game.h"

#include "rules/terrain.h"
#include "scenarios/setup.h"

namespace qarn {
TrialGame::TrialGame()
    : game{.record = {}, .controls = {}, .ports = {*this, *this, *this, *this, *this, {}}} {
    InitTerrainKinds(game.record);
}

TrialGame::TrialGame(int scenario) : TrialGame() {
    game.record.bytScenario = static_cast<std::uint8_t>(scenario);
    SetupScenario(game);
}

}  // namespace qarn
