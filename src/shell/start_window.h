#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "core/controls.h"
#include "core/opponents.h"
#include "core/ports.h"
#include "shell/kept_opponents.h"
#include "shell/next_window.h"
#include "shell/shell_ports.h"

namespace qarn {

struct TextBox {
    std::string Text;
    bool Enabled = true;
    bool Visible = true;
    bool Locked = false;        ///< read-only
    bool Storable = false;      ///< takes only characters that a game file can hold
    std::size_t MaxLength = 0;  ///< the most characters that a person can type; 0 = any number
};

struct ListBox {
    std::vector<std::string> List;
    int ListIndex = -1;  ///< the selected item, counted from 0; -1 = none
    bool Enabled = true;
    bool Visible = true;
};

/// A list of the game files in a folder.
struct FileList {
    std::string Path;
    std::vector<std::string> List;  ///< names without folder, in the file system's bytes
    std::vector<std::string> Told;  ///< of each: its game, when it was saved, what can be recovered
    int ListIndex = -1;             ///< as in ListBox
    bool Enabled = true;
    bool Visible = true;
};

enum class StartControl {
    None,
    txtNewFilePath,
    cmdNew,
    chkComputer,
    cboOpponent,
    lstScenarios,
    fileLoad,
    cmdLoad,
    cmdDelete,
    txtLocation,
    cmdBrowse,
    cmdBackGround,
    txtBackGround,
    cmdExit,
};

/// The controls of the start window, in the state in which it is created.
struct StartControls {
    StartControls();

    std::string Caption = "Thornmere Series Tatical Game Splash Screen";
    Label lblProgramName{.Caption = "Thornmere Series Tactical Game"};
    /// Its access key belongs to txtNewFilePath.
    Label lblInstructions{
        .Caption = "&Type in the name for a new game or select one that already exists."};
    TextBox txtNewFilePath;
    /// Shown while the name that is typed is that of a game.
    Label lblReplaces{
        .Caption =
            "There is a game of this name. It goes to the wastebasket when the new one starts.",
        .Visible = false};
    Button cmdNew{.Caption = "&New", .Enabled = false};
    CheckBox chkComputer{.Caption = "&Computer"};
    /// Who plays the side, while chkComputer is ticked, and what to expect of it.
    ListBox cboOpponent{.List = {}, .ListIndex = 0, .Visible = false};
    Label lblOpponent{.Caption = {}, .Visible = false};
    ListBox lstScenarios{.List = {}, .Visible = false};
    Label lblScenarioBackground{.Caption = {}, .Visible = false};

    FileList fileLoad;
    Button cmdLoad{.Caption = "&Load", .Enabled = false};
    Button cmdDelete{.Caption = "&Delete Game", .Enabled = false};
    Label lblYouAre{.Caption = "Default Filepath:"};
    TextBox txtLocation{.Text = {}, .Locked = true};
    Button cmdBrowse{.Caption = "&Browse"};

    Button cmdBackGround;
    TextBox txtBackGround{.Text = {}, .Visible = false, .Locked = true};
    Button cmdExit{.Caption = "E&xit"};  ///< Escape presses it, in every state

    std::vector<StartControl> TabOrder;
    /// The button that Enter presses: cmdNew, cmdLoad, cmdExit or None.
    StartControl DefaultButton = StartControl::cmdExit;
    /// The control that a handler has given the focus to. The front end moves the focus there and
    /// sets this back to None.
    StartControl SetFocus = StartControl::None;
};

/// What the wizard for a new game has gathered, and what the program background hides. The arrays
/// of the two sides are used from index 1.
struct StartState {
    std::uint8_t bytWizardStep = 0;  ///< 0 file name, 1 scenario, 2 player of side 1, 3 of side 2
    std::string strNewGameName;      ///< without folder and ".tgf"
    std::array<std::string, 3> strNewPlayerName;
    std::array<bool, 3> blnNewComputer{};
    Opponents newOpponent{"", classicOpponent, classicOpponent};
    std::string strSavedInstructions;
    bool blnSavedNewEnabled = false;
};

/// The start window without its widgets. Every time it is shown it is a new one. A front end writes
/// what a person types, ticks or selects into the controls and then runs the handler of that event.
struct StartWindow {
    Ports ports;
    Wastebasket& wastebasket;
    StartControls controls = {};
    StartState state = {};
    NextWindow Next = NextWindow::Same;
    std::string strGamePath = {};  ///< absolute, once the game window is next
};

// The handlers. Those that read or write files throw PlayerError with the reason when that fails;
// run them through RunEvent.

/// The window opens: shows the default folder and the games in it.
void Form_Load(StartWindow& window);

/// Makes the window ready for a person who comes from a game; `blnOpen` tells that a saved game is
/// to be chosen.
void PrepareStartWindow(StartWindow& window, bool blnOpen);

/// Lists the folder again. The selected file stays selected; when it has gone, it can no longer be
/// loaded or deleted. Also to be run whenever the folder changes.
void RefreshFileList(StartWindow& window);

/// A file was selected, by mouse or key, whether it was selected before or not: it can be loaded
/// and deleted.
void fileLoad_Click(StartWindow& window);
/// The same as cmdLoad_Click.
void fileLoad_DblClick(StartWindow& window);
/// Enter loads while the list has the focus.
void fileLoad_GotFocus(StartWindow& window);
void fileLoad_LostFocus(StartWindow& window);

/// Goes on with the selected game. Does nothing when none is selected or its name does not end like
/// a game file's.
void cmdLoad_Click(StartWindow& window);

/// Deletes the selected file when the person says Yes. Afterwards none is selected. Throws
/// PlayerError when it cannot be deleted.
void cmdDelete_Click(StartWindow& window);

/// Goes on with a game that the person picks in a dialog. Lists the folder again when that is
/// cancelled.
void cmdBrowse_Click(StartWindow& window);

/// Shows the program's background in the place of the saved games, or puts these back; until a file
/// is selected anew, none can be loaded or deleted then.
void cmdBackGround_Click(StartWindow& window);

/// Ends the program.
void cmdExit_Click(StartWindow& window);

// The wizard for a new game.

/// Takes the step that the wizard is at. A file name with a forbidden character is told and
/// emptied. The last step writes the new game and goes on with it; a game of the same name goes to
/// the wastebasket, or is asked about when it cannot. Throws PlayerError when the new game cannot
/// be written; any old one is then untouched.
void cmdNew_Click(StartWindow& window);

/// The text changed: "&New" is for a text that is not blank, and is then what Enter presses.
void txtNewFilePath_Change(StartWindow& window);
/// Enter presses "&New" while the text box has the focus.
void txtNewFilePath_GotFocus(StartWindow& window);
void txtNewFilePath_LostFocus(StartWindow& window);
/// Enter presses "&New" from here on.
void chkComputer_GotFocus(StartWindow& window);
/// Ticked or unticked: the choice of the opponent comes, with the one chosen last, or goes.
void chkComputer_Click(StartWindow& window);
/// An opponent was selected: tells what to expect of it.
void cboOpponent_Click(StartWindow& window);

/// A scenario was selected, by mouse or key: shows its background and allows the next step.
void lstScenarios_Click(StartWindow& window);
/// The same as cmdNew_Click, when that is allowed.
void lstScenarios_DblClick(StartWindow& window);

}  // namespace qarn
