#pragma once

#include <span>
#include <string_view>

namespace qarn {

struct Controls;
struct Game;
struct MenuState;

/// File > New and File > Open: asks whether to leave the game and, on Yes, closes the window as
/// Form_Unload does, so that the start window follows; Open has it choose a saved game. On No, and
/// when the game cannot be saved and the person stays, the game goes on.
void New_Click(Game& game);
void Open_Click(Game& game);

/// File > Save: saves the game under its name. A failure is reported in a box.
void mnuSave_Click(Game& game);

/// File > Save As: asks for a file, saves the game there and goes on under that name, which the
/// caption then shows, with the opponents that are kept for it. Changes nothing when no file is
/// named or the game cannot be saved there.
void mnuSaveAs_Click(Game& game);

/// File > Exit: closes the window, see Form_Unload.
void mnuExit_Click(Game& game);

/// Details > Item Details: opens the help page of the scenario's groups.
void mnuItemDetails_Click(Game& game);

/// Details > Summary Terrain Details: opens the help page of the terrain.
void mnuSummaryTerrain_Click(Game& game);

/// Tools > Replay: does nothing.
void mnuReplay_Click(Game& game);

/// Tools > Convert File: saves the game as one of the next scenario, the first after the last,
/// loads it again and asks whether this is the right one, until the answer is Yes. Stops, with the
/// scenario that the file holds, when it cannot be saved. Where nobody answers, it throws
/// NobodyAnswers after a whole round, with the file as it was.
void mnuConvertFile_Click(Game& game);

/// Options > Display Summary: turns square summaries on or off, and stores which.
void mnuSummary_Click(Game& game);

/// Help > Getting Started: opens that help page.
void mnuGetStarted_Click(Game& game);

/// Help > Help: opens the help at its start.
void mnuHelp_Click(Game& game);

/// One item of the menu bar. The menus, their shortcut keys and the text front end are all made
/// from this one table.
struct MenuCommand {
    std::string_view Menu;  ///< the caption of the menu that holds it
    std::string_view Name;  ///< empty: a separator line, or a heading where it has a caption
    std::string_view Caption;
    std::string_view Shortcut;       ///< as "Ctrl+S"; empty: none
    void (*Click)(Game&) = nullptr;  ///< its handler; null for a separator line, and where the
                                     ///< handler stands in a room above, see HandlerOf
    /// Where the item's state stands in the controls; null: always visible, and enabled while its
    /// menu is.
    MenuState Controls::*State = nullptr;
    bool Checkable = false;  ///< shows a check mark while its state is checked
    /// The caption of the submenu of its menu that holds it; empty: none.
    std::string_view Submenu = {};
    bool (*Offered)(const Game&) = nullptr;  ///< whether it can be chosen now; null: always
    bool (*Ticked)(const Game&) = nullptr;   ///< whether it is checked, of one without a state
    bool (*Shown)(const Game&) = nullptr;    ///< whether it is there; null: as its state says
};

/// All items, menu by menu, in their order.
std::span<const MenuCommand> MenuCommands();

/// The item with this name; null when there is none.
const MenuCommand* FindMenuCommand(std::string_view name);

/// True when the item is there as the game now stands.
bool IsShown(const Game& game, const MenuCommand& command);

/// True when a person can choose the item as the game now stands.
bool CanChoose(const Game& game, const MenuCommand& command);

/// True when the item, one that shows check marks, shows one now.
bool IsTicked(const Game& game, const MenuCommand& command);

}  // namespace qarn
