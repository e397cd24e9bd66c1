#include "shell/start_window.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "core/captions.h"
#include "core/file_store.h"
#include "core/game_file.h"
#include "core/player_error.h"
#include "scenarios/catalogue.h"
#include "shell/default_path.h"
#include "shell/game_files.h"
#include "shell/kept_journal.h"
#include "shell/kept_recovery.h"
#include "shell/program_texts.h"

namespace qarn {
namespace {

namespace fs = std::filesystem;

constexpr auto showBackground = "QARN Background &Information";
constexpr auto leaveBackground = "Leave Background &Information";

std::string SelectedFile(const FileList& list) {
    return list.ListIndex < 0 ? "" : list.List.at(static_cast<std::size_t>(list.ListIndex));
}

std::string PathOf(const FileList& list, const std::string& name) {
    return (fs::path(list.Path) / name).string();
}

void ShowFolder(StartWindow& window, const std::string& folder) {
    window.controls.txtLocation.Text = folder;
    window.controls.fileLoad.Path = folder;
    RefreshFileList(window);
}

void OpenGame(StartWindow& window, const std::string& path) {
    window.strGamePath = fs::absolute(path).string();
    window.Next = NextWindow::Game;
}

void AllowLoading(StartControls& controls, bool allowed) {
    controls.cmdLoad.Enabled = allowed;
    controls.cmdDelete.Enabled = allowed;
}

bool ConfirmsDeletion(StartWindow& window, const std::string& name) {
    return window.ports.dialogs.Show({.Title = "Delete " + name,
                                      .Text = "Are you sure you would like to delete this file?",
                                      .Offered = Buttons::YesNo,
                                      .DeclinedByDefault = true}) == Answer::Yes;
}

void DeleteGame(const std::string& path) {
    try {
        DeleteFile(path);
    } catch (const std::system_error& error) {
        throw PlayerError("The file can not be deleted. " + error.code().message() + ".\n" + path);
    }
}

void ShowFilesInsteadOfBackground(StartControls& controls, bool files) {
    controls.txtLocation.Visible = files;
    controls.cmdBrowse.Visible = files;
    controls.fileLoad.Visible = files;
    controls.txtBackGround.Visible = !files;
    controls.txtNewFilePath.Enabled = files;
    controls.cmdBackGround.Caption = files ? showBackground : leaveBackground;
}

void ShowProgramBackground(StartControls& controls) {
    controls.txtBackGround.Text = ProgramBackground();
}

void EnterBackground(StartControls& controls, StartState& state) {
    state.blnSavedNewEnabled = controls.cmdNew.Enabled;
    ShowFilesInsteadOfBackground(controls, false);
    AllowLoading(controls, false);
    controls.cmdNew.Enabled = false;
    state.strSavedInstructions = controls.lblInstructions.Caption;
    controls.lblInstructions.Caption = "Read about how this program began.";
    ShowProgramBackground(controls);
}

void LeaveBackground(StartControls& controls, const StartState& state) {
    ShowFilesInsteadOfBackground(controls, true);
    controls.SetFocus = StartControl::txtNewFilePath;
    controls.lblInstructions.Caption = state.strSavedInstructions;
    controls.cmdNew.Enabled = state.blnSavedNewEnabled;
}

}  // namespace

StartControls::StartControls() {
    txtNewFilePath.MaxLength = nameLength;
    for (int scenario = 1; scenario <= scenarioCount; ++scenario) {
        lstScenarios.List.emplace_back(NamesOfScenario(scenario).ListTitle);
    }
    for (const OpponentChoice& opponent : opponentChoices) {
        cboOpponent.List.push_back(PlainCaption(opponent.Caption));
    }
    cmdBackGround.Caption = showBackground;
    TabOrder = {
        StartControl::txtNewFilePath, StartControl::cmdNew,        StartControl::chkComputer,
        StartControl::cboOpponent,    StartControl::lstScenarios,  StartControl::fileLoad,
        StartControl::cmdLoad,        StartControl::cmdDelete,     StartControl::txtLocation,
        StartControl::cmdBrowse,      StartControl::cmdBackGround, StartControl::txtBackGround,
        StartControl::cmdExit};
}

void Form_Load(StartWindow& window) {
    ShowFolder(window, DefaultPath(window.ports));
    window.controls.SetFocus = StartControl::txtNewFilePath;
}

void PrepareStartWindow(StartWindow& window, bool blnOpen) {
    window.controls.lblYouAre.Visible = true;
    ShowFolder(window, DefaultPath(window.ports));
    if (!blnOpen) return;
    window.controls.fileLoad.Enabled = true;
    window.controls.SetFocus = StartControl::fileLoad;
}

void RefreshFileList(StartWindow& window) {
    FileList& list = window.controls.fileLoad;
    const std::string selected = SelectedFile(list);
    list.List.clear();
    list.Told.clear();
    for (GameFile& file : GameFilesIn(list.Path)) {
        const bool recovers = FindRecovery(window.ports, PathOf(list, file.Name)).has_value();
        list.List.push_back(std::move(file.Name));
        list.Told.push_back(file.Told + (recovers ? " Can be recovered." : ""));
    }
    const auto found = std::find(list.List.begin(), list.List.end(), selected);
    const bool there = found != list.List.end();
    list.ListIndex = there ? static_cast<int>(found - list.List.begin()) : -1;
    if (!there) AllowLoading(window.controls, false);
}

void fileLoad_Click(StartWindow& window) {
    AllowLoading(window.controls, true);
    window.controls.DefaultButton = StartControl::cmdLoad;
}

void fileLoad_DblClick(StartWindow& window) { cmdLoad_Click(window); }

void fileLoad_GotFocus(StartWindow& window) {
    window.controls.DefaultButton = StartControl::cmdLoad;
}

void fileLoad_LostFocus(StartWindow& window) {
    if (window.controls.DefaultButton == StartControl::cmdLoad) {
        window.controls.DefaultButton = StartControl::None;
    }
}

void cmdLoad_Click(StartWindow& window) {
    const FileList& list = window.controls.fileLoad;
    const std::string name = SelectedFile(list);
    if (EndsLikeGameFile(name)) OpenGame(window, PathOf(list, name));
}

void cmdDelete_Click(StartWindow& window) {
    const FileList& list = window.controls.fileLoad;
    const std::string name = SelectedFile(list);
    if (!ConfirmsDeletion(window, name)) return;
    DeleteGame(PathOf(list, name));
    ForgetJournal(window.ports, PathOf(list, name));
    ForgetRecovery(window.ports, PathOf(list, name));
    AllowLoading(window.controls, false);
    RefreshFileList(window);
    window.controls.SetFocus = StartControl::fileLoad;
}

void cmdBrowse_Click(StartWindow& window) {
    const std::string path = window.ports.dialogs.AskOpenFileName(window.controls.txtLocation.Text);
    if (path.empty()) {
        RefreshFileList(window);
    } else {
        OpenGame(window, path);
    }
}

void cmdBackGround_Click(StartWindow& window) {
    if (window.controls.cmdBackGround.Caption == showBackground) {
        EnterBackground(window.controls, window.state);
    } else {
        LeaveBackground(window.controls, window.state);
    }
}

void cmdExit_Click(StartWindow& window) { window.Next = NextWindow::None; }

}  // namespace qarn
