#include "shell/start_up.h"

#include <algorithm>
#include <stdexcept>

#include "shell/command_line.h"

namespace qarn {
namespace {

constexpr DisplayMode needed{.Width = 1024, .Height = 768};
constexpr auto manualFixTopic = "Troubleshooting.htm#ManualFix";

bool IsLargeEnough(int width, int height) {
    return width >= needed.Width && height >= needed.Height;
}

void EnumerateDisplayModes(StartUpWindow& window) {
    while (const auto mode = window.display.Mode(window.intModeCount)) {
        window.DisplayModes.push_back(*mode);
        ++window.intModeCount;
    }
}

void AskToRestart(StartUpWindow& window) {
    const Answer answer = window.dialogs.Show(
        {.Title = "Screen Resolution",
         .Text = "You must restart your computer to apply these changes.\n\nDo you want to restart "
                 "now?",
         .Offered = Buttons::YesNo});
    if (answer != Answer::Yes) return;
    try {
        window.computer.Restart();
    } catch (const std::runtime_error& error) {
        window.dialogs.Tell("The computer can not be restarted. " + std::string(error.what()));
    }
}

void TellHowToChange(StartUpWindow& window) {
    window.dialogs.Tell(
        "Please manualy change your resolution to 1024x768.\nThe program was unable to change "
        "it.\nClick OK to view instructions on how to change the settings manually.");
    window.help.ShowHelp(manualFixTopic);
}

void ChangeResolution(StartUpWindow& window) {
    switch (window.display.Change(needed, false)) {
        case DisplayChange::Successful:
            window.display.Change(needed, true);
            window.dialogs.Show({.Title = "Resolution Changed",
                                 .Text = "Screen resolution changed",
                                 .Shown = Icon::Information});
            break;
        case DisplayChange::Restart:
            AskToRestart(window);
            break;
        case DisplayChange::Failed:
            TellHowToChange(window);
            break;
    }
}

}  // namespace

void Form_Load(StartUpWindow& window) {
    // Asking the display for its modes takes time, and only a screen that is too small needs them.
    if (IsLargeEnough(CurrentHRes(window), CurrentVRes(window))) {
        CommandCheck(window);
        return;
    }
    EnumerateDisplayModes(window);
    if (!IsLargeEnough(MaxHRes(window), MaxVRes(window))) {
        window.dialogs.Tell("Your computer does not support 1024x768");
        window.Next = NextWindow::None;
    } else {
        window.Visible = true;
    }
}

void cmdYes_Click(StartUpWindow& window) {
    ChangeResolution(window);
    CommandCheck(window);
}

void cmdNo_Click(StartUpWindow& window) { CommandCheck(window); }

void cmdHelp_Click(StartUpWindow& window) { window.help.ShowHelp(manualFixTopic); }

int CurrentHRes(const StartUpWindow& window) { return window.screen.Width; }

int CurrentVRes(const StartUpWindow& window) { return window.screen.Height; }

int MaxHRes(const StartUpWindow& window) {
    int width = 0;
    for (const DisplayMode& mode : window.DisplayModes) width = std::max(width, mode.Width);
    return width;
}

int MaxVRes(const StartUpWindow& window) {
    int height = 0;
    for (const DisplayMode& mode : window.DisplayModes) height = std::max(height, mode.Height);
    return height;
}

void CommandCheck(StartUpWindow& window) {
    window.Visible = false;
    window.strGamePath = GamePathOf(window.strCommandLine);
    window.Next = window.strGamePath.empty() ? NextWindow::Start : NextWindow::Game;
}

}  // namespace qarn
