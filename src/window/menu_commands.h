#pragma once

#include <span>
#include <string_view>

#include "core/game.h"

namespace qarn {

void New_Click(Game& game);
void Open_Click(Game& game);
void mnuSave_Click(Game& game);
void mnuSaveAs_Click(Game& game);
void mnuExit_Click(Game& game);
void mnuItemDetails_Click(Game& game);
void mnuSummaryTerrain_Click(Game& game);
void mnuReplay_Click(Game& game);
void mnuConvertFile_Click(Game& game);
void mnuSummary_Click(Game& game);
void mnuGetStarted_Click(Game& game);
void mnuHelp_Click(Game& game);

/// One item of the menu bar. The menus, their shortcut keys and the text front end are all made
/// from this one table.
struct MenuCommand {
    std::string_view Menu;  ///< the caption of the menu that holds it
    std::string_view Name;  ///< empty: a separator line
    std::string_view Caption;
    std::string_view Shortcut;  ///< as "Ctrl+S"; empty: none
    void (*Click)(Game&) = nullptr;
    /// Where the item's state stands in the controls; null: always enabled, never checked.
    MenuState Controls::*State = nullptr;
};

/// All items, menu by menu, in their order.
std::span<const MenuCommand> MenuCommands();

/// The item with this name; null when there is none.
const MenuCommand* FindMenuCommand(std::string_view name);

/// True when a person can choose the item as the controls now stand.
bool CanChoose(const Controls& controls, const MenuCommand& command);

}  // namespace qarn
