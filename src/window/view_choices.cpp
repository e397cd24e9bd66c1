#include "window/view_choices.h"

#include <algorithm>
#include <array>
#include <string>

#include "core/game.h"
#include "shell/user_settings.h"

namespace qarn {
namespace {

constexpr std::array viewChoices{
    ViewChoice{"mnuSides", &ViewChoices::sides},
    ViewChoice{"mnuReach", &ViewChoices::reach},
    ViewChoice{"mnuOdds", &ViewChoices::odds},
    ViewChoice{"mnuTerrainPatterns", &ViewChoices::terrainPatterns},
    ViewChoice{"mnuLargeCodes", &ViewChoices::largeCodes},
    ViewChoice{"mnuCoordinates", &ViewChoices::coordinates},
    ViewChoice{"mnuLastMove", &ViewChoices::lastMove},
    ViewChoice{"mnuJournal", &ViewChoices::journal},
    ViewChoice{"mnuRoster", &ViewChoices::roster},
    ViewChoice{"mnuFullScreen", &ViewChoices::fullScreen},
};

// The settings call it as the menu does, without the head of its name.
std::string SectionOf(const ViewChoice& choice) { return std::string(choice.Item.substr(3)); }

}  // namespace

std::span<const ViewChoice> AllViewChoices() { return viewChoices; }

void LoadViewChoices(Game& game) {
    for (const ViewChoice& choice : viewChoices) {
        game.view.*choice.Chosen = ReadSetting(game.ports, SectionOf(choice), "False") == "True";
    }
}

void ChooseToShow(Game& game, bool ViewChoices::*what, bool on) {
    const ViewChoice& choice =
        *std::find_if(viewChoices.begin(), viewChoices.end(),
                      [&](const ViewChoice& one) { return one.Chosen == what; });
    StoreSetting(game.ports, SectionOf(choice), on ? "True" : "False");
    LoadViewChoices(game);
}

}  // namespace qarn
