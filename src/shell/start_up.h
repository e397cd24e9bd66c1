#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/controls.h"
#include "core/ports.h"
#include "shell/next_window.h"
#include "shell/shell_ports.h"

namespace qarn {

/// The start-up window without its widgets: the first window of the program, on screen only when
/// that is smaller than the game window needs.
struct StartUpWindow {
    Dialogs& dialogs;
    HelpViewer& help;
    DisplaySettings& display;
    Computer& computer;
    std::string strCommandLine;  ///< the program's arguments, as one text
    DisplayMode screen;          ///< the size of the screen now, 0 x 0 when it is not known

    std::string Caption = "Screen Resolution";
    Label lblPrompt{.Caption = "Would you like to set the resolution to 1024x768?"};
    Button cmdYes{.Caption = "&Yes"};
    Button cmdNo{.Caption = "&No"};
    Button cmdHelp{.Caption = "&Help"};
    bool Visible = false;

    std::vector<DisplayMode> DisplayModes = {};  ///< in the display's order
    std::int16_t intModeCount = 0;

    NextWindow Next = NextWindow::Same;
    std::string strGamePath = {};  ///< absolute, once the game window is next
};

/// The program starts: either says at once which window is next, or shows this one and waits for
/// its buttons. Ends the program with a box when no mode of the display is large enough.
void Form_Load(StartUpWindow& window);

/// Switches the display to 1024 x 768 and goes on: for good, when that succeeds at once, after a
/// question whether to restart the computer, or with a box and the help page when it fails.
void cmdYes_Click(StartUpWindow& window);

/// Goes on with the display as it is.
void cmdNo_Click(StartUpWindow& window);

/// Opens the help page on changing the display by hand. The window stays.
void cmdHelp_Click(StartUpWindow& window);

/// The width and the height of the screen in pixels, 0 when they are not known.
int CurrentHRes(const StartUpWindow& window);
int CurrentVRes(const StartUpWindow& window);

/// The largest width and the largest height among DisplayModes, each by itself; 0 when it is empty.
int MaxHRes(const StartUpWindow& window);
int MaxVRes(const StartUpWindow& window);

/// Which window is next: the game window when the command line names a game file, else the
/// start window.
void CommandCheck(StartUpWindow& window);

}  // namespace qarn
