#pragma once

#include <span>
#include <string_view>

#include "core/house_rules.h"

namespace qarn {

struct Game;

/// A house rule that a person can choose. The menu, the text front end and the settings are made
/// from one table of them.
struct HouseRule {
    std::string_view Name;  ///< what programs call it
    std::string_view Told;  ///< what the status line calls it
    std::string_view Item;  ///< its menu item
    bool HouseRules::*Chosen;
};

/// All of them, in the order of the menu.
std::span<const HouseRule> AllHouseRules();

/// Sets the house rules of the game in progress from the person's settings; off when there are
/// none.
void LoadHouseRules(Game& game);

/// Stores whether the person plays by a house rule, and sets the rules again from the settings. A
/// setting that can not be stored is reported in a box.
void ChooseHouseRule(Game& game, const HouseRule& rule, bool on);

/// Adds the house rules that are on to the status line, if there are any.
void TellHouseRules(Game& game);

/// Play > House Rules > Own Groups Only: turns the rule on or off.
void mnuOwnGroupsOnly_Click(Game& game);

/// Play > House Rules > One Turn for a Burning: the same.
void mnuOneTurnForABurning_Click(Game& game);

}  // namespace qarn
