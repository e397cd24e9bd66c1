#include "play/first_offer.h"

#include <algorithm>
#include <string>

#include "core/game.h"
#include "shell/user_settings.h"
#include "window/house_rules.h"
#include "window/menu_commands.h"
#include "window/view_choices.h"

namespace qarn {
namespace {

const std::string section = "Offer";

const HouseRule& OwnGroupsOnly() {
    const auto rules = AllHouseRules();
    return *std::find_if(rules.begin(), rules.end(), [](const HouseRule& rule) {
        return rule.Chosen == &HouseRules::ownGroupsOnly;
    });
}

}  // namespace

bool IsOfferDue(const Game& game) { return ReadSetting(game.ports, section, "").empty(); }

bool CanTakeOffer(const Game& game) {
    return CanChoose(game, *FindMenuCommand(OwnGroupsOnly().Item));
}

void TakeOffer(Game& game) {
    for (const auto what : {&ViewChoices::sides, &ViewChoices::reach, &ViewChoices::odds}) {
        ChooseToShow(game, what, true);
    }
    ChooseHouseRule(game, OwnGroupsOnly(), true);
    EndOffer(game);
}

void EndOffer(Game& game) { StoreSetting(game.ports, section, "Made"); }

}  // namespace qarn
