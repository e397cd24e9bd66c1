#pragma once

#include <span>
#include <string_view>

#include "core/view_choices.h"

namespace qarn {

struct Game;

/// One thing that a person can have shown. The menu View and the settings are made from one table.
struct ViewChoice {
    std::string_view Item;  ///< its menu item
    bool ViewChoices::*Chosen;
};

/// All of them, in the order of the menu.
std::span<const ViewChoice> AllViewChoices();

/// Sets what is shown from the person's settings; nothing of it when there are none.
void LoadViewChoices(Game& game);

/// Stores whether the person has something shown, and sets all of it again from the settings. A
/// setting that can not be stored is reported in a box.
void ChooseToShow(Game& game, bool ViewChoices::*what, bool on);

}  // namespace qarn
