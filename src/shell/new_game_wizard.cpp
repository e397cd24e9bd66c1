#include <algorithm>
#include <filesystem>
#include <stdexcept>
#include <system_error>

#include "core/blanks.h"
#include "core/file_store.h"
#include "core/game_file.h"
#include "core/player_error.h"
#include "scenarios/catalogue.h"
#include "scenarios/setup.h"
#include "shell/kept_journal.h"
#include "shell/kept_recovery.h"
#include "shell/start_window.h"
#include "shell/user_settings.h"

namespace qarn {
namespace {

namespace fs = std::filesystem;

const std::string opponentSection = "Opponent";
constexpr std::string_view extension = ".tgf";
constexpr std::string_view forbidden = "\\/:*?\"<>|";

// A text that a handler writes counts as a change like one that is typed.
void SetText(StartWindow& window, const std::string& text) {
    window.controls.txtNewFilePath.Text = text;
    txtNewFilePath_Change(window);
}

// True while the name that is typed is that of a game in the folder.
bool ReplacesAGame(const StartWindow& window) {
    if (window.state.bytWizardStep != 0) return false;
    std::string name(WithoutBlanks(window.controls.txtNewFilePath.Text));
    if (!name.ends_with(extension)) name += extension;
    const auto& games = window.controls.fileLoad.List;
    return std::find(games.begin(), games.end(), name) != games.end();
}

void OfferNew(StartControls& controls) {
    controls.cmdNew.Enabled = true;
    controls.DefaultButton = StartControl::cmdNew;
}

// ---- Step 0, the file name ----

void HideSavedGames(StartControls& controls) {
    controls.txtLocation.Visible = false;
    controls.cmdBrowse.Visible = false;
    controls.fileLoad.Visible = false;
    controls.cmdLoad.Visible = false;
    controls.lblYouAre.Visible = false;
    controls.cmdDelete.Visible = false;
    controls.cmdBackGround.Visible = false;
}

// Puts the controls to the places 1, 2 and 3 of the tab order, behind the text box at place 0.
void SetTabOrderOfWizard(std::vector<StartControl>& order) {
    const std::array moved{StartControl::cmdNew, StartControl::lstScenarios, StartControl::cmdExit};
    std::erase_if(order, [&](StartControl control) {
        return std::find(moved.begin(), moved.end(), control) != moved.end();
    });
    order.insert(order.begin() + 1, moved.begin(), moved.end());
}

void ShowScenarios(StartControls& controls) {
    controls.lstScenarios.Visible = true;
    controls.lblInstructions.Caption = "Select the scenario you would like to play.";
    HideSavedGames(controls);
    controls.cmdNew.Caption = "&Next";
    controls.cmdNew.Enabled = false;
    controls.txtNewFilePath.Locked = true;
    SetTabOrderOfWizard(controls.TabOrder);
    controls.SetFocus = StartControl::lstScenarios;
}

void TakeFileName(StartWindow& window) {
    std::string name(WithoutBlanks(window.controls.txtNewFilePath.Text));
    if (name.find_first_of(forbidden) != std::string::npos) {
        window.ports.dialogs.Tell(
            "You can not have a game containing the followin characters: \\ / : * ? \" < > |");
        SetText(window, "");
        window.controls.SetFocus = StartControl::txtNewFilePath;
        return;
    }
    if (name.ends_with(extension)) name.resize(name.size() - extension.size());
    SetText(window, name);
    ShowScenarios(window.controls);
    window.state.strNewGameName = name;
    window.state.bytWizardStep = 1;
}

// ---- Step 1, the scenario ----

void ShowScenarioBackground(StartControls& controls) {
    const int scenario = controls.lstScenarios.ListIndex + 1;
    if (scenario == 0) return;
    controls.lblScenarioBackground.Caption = DataOfScenario(scenario).Background;
}

void AskForPlayer(StartWindow& window, const char* instructions) {
    StartControls& controls = window.controls;
    controls.lblInstructions.Caption = instructions;
    controls.txtNewFilePath.Locked = false;
    controls.txtNewFilePath.Storable = true;
    controls.lstScenarios.Enabled = false;
    SetText(window, "");
    controls.SetFocus = StartControl::txtNewFilePath;
}

void TakeScenario(StartWindow& window) {
    AskForPlayer(window, "Type in a goodbeast's name.");
    window.state.bytWizardStep = 2;
    window.controls.chkComputer.Visible = true;
}

// ---- Steps 2 and 3, the players ----

void ShowOpponent(StartWindow& window, bool shown) {
    StartControls& controls = window.controls;
    controls.cboOpponent.Visible = shown;
    controls.lblOpponent.Visible = shown;
    if (!shown) return;
    const OpponentChoice* last = FindOpponentChoice(
        ReadSetting(window.ports, opponentSection, std::string(classicOpponent)));
    if (last == nullptr) last = opponentChoices.data();
    controls.cboOpponent.ListIndex = static_cast<int>(last - opponentChoices.data());
    cboOpponent_Click(window);
}

const OpponentChoice& SelectedOpponent(const StartControls& controls) {
    return opponentChoices.at(static_cast<std::size_t>(controls.cboOpponent.ListIndex));
}

void TakeOpponent(StartWindow& window, std::size_t side) {
    const std::string name(SelectedOpponent(window.controls).Name);
    window.state.newOpponent[side] = SelectedOpponent(window.controls).Name;
    if (name != ReadSetting(window.ports, opponentSection, std::string(classicOpponent))) {
        StoreSetting(window.ports, opponentSection, name);
    }
}

Player TypedPlayer(const StartControls& controls) {
    return {controls.txtNewFilePath.Text, controls.chkComputer.Value};
}

void TakePlayer(StartWindow& window, std::size_t side) {
    const Player player = TypedPlayer(window.controls);
    window.state.strNewPlayerName[side] = player.strPlayerName;
    window.state.blnNewComputer[side] = player.blnComputer;
    if (player.blnComputer) TakeOpponent(window, side);
    window.controls.chkComputer.Value = false;
    ShowOpponent(window, false);
}

void TakeGoodbeast(StartWindow& window) {
    TakePlayer(window, 1);
    AskForPlayer(window, "Type in badbeast's name.");
    window.controls.cmdNew.Caption = "&Start";
    window.state.bytWizardStep = 3;
}

std::string TextOfNewGame(const StartWindow& window) {
    const StartState& state = window.state;
    std::string code;
    ScenarioCode(window.controls.lstScenarios.ListIndex + 1, code);
    return NewGameText(code, {{{state.strNewPlayerName[1], state.blnNewComputer[1]},
                               TypedPlayer(window.controls)}});
}

bool AgreesToReplace(StartWindow& window, const std::string& path, const std::string& reason) {
    const std::string text =
        "A game of this name exists already and can not be moved to the wastebasket. " + reason +
        "\n" + path + "\nDo you want to replace it for good?";
    return window.ports.dialogs.Show(
               {.Title = {}, .Text = text, .Offered = Buttons::YesNo, .DeclinedByDefault = true}) ==
           Answer::Yes;
}

// Gives true when nothing hinders the new game at this path any longer.
bool ClearsAway(StartWindow& window, const std::string& path) {
    if (!fs::is_regular_file(path)) return true;
    try {
        window.wastebasket.MoveThere(fs::canonical(path).string());
        return true;
    } catch (const std::runtime_error& error) {
        return AgreesToReplace(window, path, error.what());
    }
}

// The old game makes room only once the new one is on the disk, so that a failure leaves it where
// it was. Gives false when it is to stay.
bool WriteNewGame(StartWindow& window, const std::string& path) {
    std::string reason;
    try {
        return ReplaceFile(path, TextOfNewGame(window), [&] { return ClearsAway(window, path); });
    } catch (const std::system_error& error) {
        reason = error.code().message() + ".";
    } catch (const SaveError& error) {
        reason = error.what();
    }
    throw PlayerError("The new game can not be written. " + reason + "\n" + path);
}

void StartGame(StartWindow& window) {
    const fs::path folder = window.controls.txtLocation.Text;
    const std::string name = window.state.strNewGameName + std::string(extension);
    const std::string path = (folder / name).string();
    if (!WriteNewGame(window, path)) return;
    TakePlayer(window, 2);
    KeepOpponents(window.ports, path, window.state.newOpponent);
    ForgetJournal(window.ports, path);
    ForgetRecovery(window.ports, path);
    window.strGamePath = fs::absolute(path).string();
    window.Next = NextWindow::Game;
}

}  // namespace

void cmdNew_Click(StartWindow& window) {
    switch (window.state.bytWizardStep) {
        case 0:
            TakeFileName(window);
            break;
        case 1:
            TakeScenario(window);
            break;
        case 2:
            TakeGoodbeast(window);
            break;
        default:
            StartGame(window);
    }
}

void txtNewFilePath_Change(StartWindow& window) {
    StartControls& controls = window.controls;
    controls.lblReplaces.Visible = ReplacesAGame(window);
    if (WithoutBlanks(controls.txtNewFilePath.Text).empty()) {
        controls.cmdNew.Enabled = false;
    } else {
        OfferNew(controls);
    }
}

void txtNewFilePath_GotFocus(StartWindow& window) {
    window.controls.DefaultButton = StartControl::cmdNew;
}

void txtNewFilePath_LostFocus(StartWindow& window) {
    if (window.controls.DefaultButton == StartControl::cmdNew) {
        window.controls.DefaultButton = StartControl::None;
    }
}

void chkComputer_GotFocus(StartWindow& window) {
    window.controls.DefaultButton = StartControl::cmdNew;
}

void chkComputer_Click(StartWindow& window) {
    ShowOpponent(window, window.controls.chkComputer.Value);
}

void cboOpponent_Click(StartWindow& window) {
    window.controls.lblOpponent.Caption = SelectedOpponent(window.controls).Expectation;
}

void lstScenarios_Click(StartWindow& window) {
    OfferNew(window.controls);
    window.controls.lblScenarioBackground.Visible = true;
    ShowScenarioBackground(window.controls);
}

void lstScenarios_DblClick(StartWindow& window) {
    if (window.controls.cmdNew.Enabled) cmdNew_Click(window);
}

}  // namespace qarn
