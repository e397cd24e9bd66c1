#include "window/menu_commands.h"

#include <algorithm>
#include <array>
#include <filesystem>

#include "core/game.h"
#include "core/opponents.h"
#include "scenarios/catalogue.h"
#include "shell/about.h"
#include "shell/default_path.h"
#include "shell/file_commands.h"
#include "shell/item_details.h"
#include "shell/kept_opponents.h"
#include "shell/user_settings.h"
#include "window/board_clicks.h"
#include "window/hint_mark.h"
#include "window/house_rules.h"
#include "window/load_game.h"
#include "window/opponents_turn.h"
#include "window/recovery.h"
#include "window/save_game.h"
#include "window/speed.h"
#include "window/view_choices.h"

namespace qarn {
namespace {

constexpr std::string_view fileMenu = "&File";
constexpr std::string_view detailsMenu = "&Details";
constexpr std::string_view toolsMenu = "&Tools";
constexpr std::string_view optionsMenu = "&Options";
constexpr std::string_view viewMenu = "&View";
constexpr std::string_view playMenu = "&Play";
constexpr std::string_view helpMenu = "&Help";

constexpr std::string_view opponentMenu = "&Opponent";
constexpr std::string_view speedMenu = "&Speed";
constexpr std::string_view houseRulesMenu = "House &Rules";

constexpr bool checkable = true;

// The File menu rests while a move or an attack is under way.
bool IsBetweenMoves(const Game& game) { return game.controls.File.Enabled; }

constexpr MenuCommand HouseRuleItem(std::string_view name, std::string_view caption,
                                    void (*click)(Game&), bool (*ticked)(const Game&)) {
    return {playMenu,  name,           caption,        "",    click, nullptr,
            checkable, houseRulesMenu, IsBetweenMoves, ticked};
}

template <std::size_t side>
bool IsComputers(const Game& game) {
    return game.record.blnComputer[side];
}

template <std::size_t side>
constexpr MenuCommand OpponentsOfSide(std::string_view caption) {
    return {.Menu = playMenu,
            .Name = "",
            .Caption = caption,
            .Shortcut = "",
            .Submenu = opponentMenu,
            .Shown = IsComputers<side>};
}

template <bool ViewChoices::*what>
constexpr MenuCommand ViewItem(std::string_view name, std::string_view caption,
                               std::string_view shortcut = "") {
    return {.Menu = viewMenu,
            .Name = name,
            .Caption = caption,
            .Shortcut = shortcut,
            .Click = [](Game& game) { ChooseToShow(game, what, !(game.view.*what)); },
            .Checkable = true,
            .Ticked = [](const Game& game) { return game.view.*what; }};
}

void ChooseAndKeepOpponent(Game& game, std::size_t side, const OpponentChoice& opponent) {
    ChooseOpponent(game, side, opponent);
    KeepOpponents(game.ports, game.record.strGamePath, game.opponent);
}

template <std::size_t side, std::size_t which>
constexpr MenuCommand OpponentItem(std::string_view name) {
    constexpr const OpponentChoice* opponent = &opponentChoices[which];
    return {.Menu = playMenu,
            .Name = name,
            .Caption = opponent->Caption,
            .Shortcut = "",
            .Click = [](Game& game) { ChooseAndKeepOpponent(game, side, *opponent); },
            .Checkable = true,
            .Submenu = opponentMenu,
            .Ticked = [](const Game& game) { return game.opponent[side] == opponent->Name; },
            .Shown = IsComputers<side>};
}

template <Speed speed>
constexpr MenuCommand SpeedItem(std::string_view name, std::string_view caption) {
    return {.Menu = playMenu,
            .Name = name,
            .Caption = caption,
            .Shortcut = "",
            .Click = [](Game& game) { ChooseSpeed(game, speed); },
            .Checkable = true,
            .Submenu = speedMenu,
            .Ticked = [](const Game& game) { return game.speed == speed; }};
}

// One whose handler stands in a room above.
constexpr MenuCommand PlayItem(std::string_view name, std::string_view caption,
                               bool (*offered)(const Game&)) {
    return {playMenu, name, caption, "", nullptr, nullptr, false, "", offered};
}

constexpr std::array menuCommands{
    MenuCommand{fileMenu, "New", "&New...", "Ctrl+N", New_Click},
    MenuCommand{fileMenu, "Open", "&Open...", "Ctrl+O", Open_Click},
    MenuCommand{fileMenu, "mnuSave", "&Save", "Ctrl+S", mnuSave_Click},
    MenuCommand{fileMenu, "mnuSaveAs", "Save &As...", "F12", mnuSaveAs_Click},
    MenuCommand{fileMenu, "", "", "", nullptr},
    MenuCommand{fileMenu, "mnuExit", "E&xit", "Ctrl+X", mnuExit_Click},
    MenuCommand{detailsMenu, "mnuPeopleDetails", "&Details", "Ctrl+D", mnuPeopleDetails_Click,
                &Controls::mnuPeopleDetails, checkable},
    MenuCommand{detailsMenu, "mnuItemDetails", "&Item Details", "Ctrl+I", mnuItemDetails_Click},
    MenuCommand{detailsMenu, "mnuSummaryTerrain", "Summary &Terrain Details", "Ctrl+T",
                mnuSummaryTerrain_Click},
    MenuCommand{toolsMenu, "mnuReplay", "&Replay", "Ctrl+R", mnuReplay_Click},
    MenuCommand{toolsMenu, "mnuConvertFile", "&Convert File", "", mnuConvertFile_Click,
                &Controls::mnuConvertFile},
    MenuCommand{optionsMenu, "mnuSummary", "&Display Summary", "", mnuSummary_Click,
                &Controls::mnuSummary, checkable},
    MenuCommand{optionsMenu, "mnuDefaultFilepath", "Default &Filepath", "",
                mnuDefaultFilepath_Click},
    MenuCommand{optionsMenu, "mnuTGF", "Add and Remove the &TGF Filetype", "", mnuTGF_Click,
                &Controls::mnuTGF, checkable},
    ViewItem<&ViewChoices::sides>("mnuSides", "&Sides"),
    ViewItem<&ViewChoices::reach>("mnuReach", "&Reach"),
    ViewItem<&ViewChoices::odds>("mnuOdds", "&Odds"),
    ViewItem<&ViewChoices::terrainPatterns>("mnuTerrainPatterns", "Terrain &Patterns"),
    ViewItem<&ViewChoices::largeCodes>("mnuLargeCodes", "&Large Codes"),
    ViewItem<&ViewChoices::coordinates>("mnuCoordinates", "&Coordinates"),
    ViewItem<&ViewChoices::lastMove>("mnuLastMove", "Last &Move"),
    ViewItem<&ViewChoices::journal>("mnuJournal", "&Journal"),
    ViewItem<&ViewChoices::roster>("mnuRoster", "&Roster"),
    ViewItem<&ViewChoices::fullScreen>("mnuFullScreen", "&Full Screen", "F11"),
    MenuCommand{playMenu, "mnuTakeBack", "&Take Back", "Ctrl+Z", nullptr, &Controls::mnuTakeBack},
    MenuCommand{playMenu, "mnuCancelMove", "&Cancel Move", "Esc", nullptr,
                &Controls::mnuCancelMove},
    PlayItem("mnuPassTurn", "&Pass Turn", IsPersonToBegin),
    MenuCommand{playMenu, "mnuHint", "&Hint", "Ctrl+H", mnuHint_Click, nullptr, false, "",
                IsHintOffered},
    MenuCommand{playMenu, "", "", "", nullptr},
    OpponentsOfSide<1>("Goodbeasts"),
    OpponentItem<1, 0>("mnuClassic1"),
    OpponentItem<1, 1>("mnuScout1"),
    OpponentItem<1, 2>("mnuCaptain1"),
    OpponentItem<1, 3>("mnuWarlord1"),
    OpponentsOfSide<2>("Badbeasts"),
    OpponentItem<2, 0>("mnuClassic2"),
    OpponentItem<2, 1>("mnuScout2"),
    OpponentItem<2, 2>("mnuCaptain2"),
    OpponentItem<2, 3>("mnuWarlord2"),
    SpeedItem<Speed::Second>("mnuSpeedSecond", "One &Second a Step"),
    SpeedItem<Speed::Third>("mnuSpeedThird", "A &Third of a Second"),
    SpeedItem<Speed::AtOnce>("mnuSpeedAtOnce", "At &Once"),
    HouseRuleItem("mnuOwnGroupsOnly", "&Own Groups Only", mnuOwnGroupsOnly_Click,
                  [](const Game& game) { return game.record.house.ownGroupsOnly; }),
    HouseRuleItem("mnuOneTurnForABurning", "One &Turn for a Burning", mnuOneTurnForABurning_Click,
                  [](const Game& game) { return game.record.house.oneTurnForABurning; }),
    MenuCommand{playMenu, "", "", "", nullptr},
    PlayItem("mnuResign", "&Resign", IsPersonsTurn),
    PlayItem("mnuOfferDraw", "&Offer Draw", IsPersonToBeginOwn),
    MenuCommand{helpMenu, "mnuGetStarted", "&Getting Started", "", mnuGetStarted_Click},
    MenuCommand{helpMenu, "mnuHelp", "&Help", "F1", mnuHelp_Click},
    MenuCommand{helpMenu, "", "", "", nullptr},
    MenuCommand{helpMenu, "mnuAbout", "&About", "", mnuAbout_Click, &Controls::mnuAbout},
};

bool ConfirmsLeaving(Game& game) {
    return game.ports.dialogs.Show({.Title = "Leave Game",
                                    .Text = "Are you sure you want to leave this game?",
                                    .Offered = Buttons::YesNo}) == Answer::Yes;
}

// The start window is made ready when it opens, which it does once this window has closed.
void LeaveForStartWindow(Game& game, bool blnOpen) {
    if (!ConfirmsLeaving(game)) return;
    game.blnLeftByOpen = blnOpen;
    game.record.blnLeaving = true;
    Form_Unload(game);
}

}  // namespace

void New_Click(Game& game) { LeaveForStartWindow(game, false); }

void Open_Click(Game& game) { LeaveForStartWindow(game, true); }

void mnuSave_Click(Game& game) { TrySaveGame(game); }

void mnuSaveAs_Click(Game& game) {
    GameRecord& record = game.record;
    const std::string path = game.ports.dialogs.AskSaveFileName(record.strGamePath);
    if (path.empty() || !IsKnownScenario(record)) return;

    const std::string oldName = record.strGameName;
    const std::string oldPath = record.strGamePath;
    record.strGameName = std::filesystem::path(path).filename();
    record.strGamePath = path;
    if (!TrySaveGame(game)) {
        record.strGameName = oldName;
        record.strGamePath = oldPath;
        return;
    }
    KeepOpponents(game.ports, path, KeptOpponents(game.ports, oldPath));
    ForgetRecovery(game, oldPath);
    BeginRecovery(game);
    ComposeCaption(game);
    AppendPlayersToCaption(game);
}

void mnuExit_Click(Game& game) { Form_Unload(game); }

void mnuItemDetails_Click(Game& game) { ItemDetails(game); }

void mnuSummaryTerrain_Click(Game& game) { game.ports.help.ShowHelp("Terrain Info.htm"); }

// The item is there, and nothing happens.
void mnuReplay_Click(Game&) {}

void mnuSummary_Click(Game& game) {
    game.controls.mnuSummary.Checked = !game.controls.mnuSummary.Checked;
    SaveSummarySetting(game, game.controls.mnuSummary.Checked);
}

void mnuGetStarted_Click(Game& game) { game.ports.help.ShowHelp("GettingStarted.htm"); }

void mnuHelp_Click(Game& game) { game.ports.help.ShowHelp(""); }

std::span<const MenuCommand> MenuCommands() { return menuCommands; }

const MenuCommand* FindMenuCommand(std::string_view name) {
    const auto found = std::find_if(
        menuCommands.begin(), menuCommands.end(),
        [&](const MenuCommand& command) { return !name.empty() && command.Name == name; });
    return found == menuCommands.end() ? nullptr : &*found;
}

bool IsShown(const Game& game, const MenuCommand& command) {
    if (command.Shown != nullptr) return command.Shown(game);
    return command.State == nullptr || (game.controls.*command.State).Visible;
}

bool CanChoose(const Game& game, const MenuCommand& command) {
    if (command.Menu == fileMenu && !IsBetweenMoves(game) && !OpponentActs(game)) return false;
    if (command.Offered != nullptr && !command.Offered(game)) return false;
    return IsShown(game, command) &&
           (command.State == nullptr || (game.controls.*command.State).Enabled);
}

bool IsTicked(const Game& game, const MenuCommand& command) {
    return command.Ticked != nullptr ? command.Ticked(game)
                                     : (game.controls.*command.State).Checked;
}

}  // namespace qarn
