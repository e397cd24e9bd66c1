#include "ai/starting_position.h"

#include "ai/self_play_ports.h"
#include "core/game.h"
#include "rules/terrain.h"
#include "scenarios/catalogue.h"
#include "scenarios/setup.h"

namespace qarn {

void SetUpNewGame(Game& game, int scenario) {
    NamesOfScenario(scenario);  // throws for a scenario that is none
    game.record.bytScenario = static_cast<std::uint8_t>(scenario);
    InitTerrainKinds(game.record);
    SetupScenario(game);
}

Position StartOf(int scenario) {
    SelfPlayPorts ports(0);
    Game game{.record = {}, .controls = {}, .ports = ports.All()};
    SetUpNewGame(game, scenario);
    return PositionOf(game.record);
}

}  // namespace qarn
