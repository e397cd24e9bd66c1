#include "shell/item_details.h"

#include "core/game.h"
#include "scenarios/catalogue.h"

namespace qarn {

void ItemDetails(Game& game) {
    std::string code;
    ScenarioCode(game.record.bytScenario, code);
    game.ports.help.ShowHelp(code + "details.htm");
}

}  // namespace qarn
