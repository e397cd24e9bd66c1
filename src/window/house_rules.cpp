#include "window/house_rules.h"

#include <array>
#include <string>

#include "core/game.h"
#include "shell/user_settings.h"

namespace qarn {
namespace {

constexpr HouseRule ownGroupsOnly{"ownGroups", "own groups only", "mnuOwnGroupsOnly",
                                  &HouseRules::ownGroupsOnly};
constexpr HouseRule oneTurnForABurning{"oneTurnForBurning", "one turn for a burning",
                                       "mnuOneTurnForABurning", &HouseRules::oneTurnForABurning};
constexpr std::array houseRules{ownGroupsOnly, oneTurnForABurning};

// The settings call a rule as the menu does, without the head of its name.
std::string SectionOf(const HouseRule& rule) { return std::string(rule.Item.substr(3)); }

// Below the status line that it comes with; empty when there are none.
std::string Sentence(const HouseRules& rules) {
    std::string told;
    for (const HouseRule& rule : houseRules) {
        if (!(rules.*rule.Chosen)) continue;
        told += told.empty() ? "\nHouse rules: " : ", ";
        told += rule.Told;
    }
    return told.empty() ? told : told + ".";
}

void Replace(std::string& text, const std::string& ending, const std::string& by) {
    if (!ending.empty() && text.ends_with(ending)) {
        text.replace(text.size() - ending.size(), ending.size(), by);
    }
}

void Toggle(Game& game, const HouseRule& rule) {
    ChooseHouseRule(game, rule, !(game.record.house.*rule.Chosen));
}

}  // namespace

std::span<const HouseRule> AllHouseRules() { return houseRules; }

void LoadHouseRules(Game& game) {
    for (const HouseRule& rule : houseRules) {
        game.record.house.*rule.Chosen =
            ReadSetting(game.ports, SectionOf(rule), "False") == "True";
    }
}

void ChooseHouseRule(Game& game, const HouseRule& rule, bool on) {
    const std::string told = Sentence(game.record.house);
    StoreSetting(game.ports, SectionOf(rule), on ? "True" : "False");
    LoadHouseRules(game);
    Replace(game.controls.lblStatus.Caption, told, Sentence(game.record.house));
    Replace(game.record.strRememberedStatus, told, Sentence(game.record.house));
}

void TellHouseRules(Game& game) { game.controls.lblStatus.Caption += Sentence(game.record.house); }

void mnuOwnGroupsOnly_Click(Game& game) { Toggle(game, ownGroupsOnly); }

void mnuOneTurnForABurning_Click(Game& game) { Toggle(game, oneTurnForABurning); }

}  // namespace qarn
