#pragma once

#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include "desktop/help_program.h"
#include "shell/start_up.h"
#include "ui/qt_ports.h"

namespace qarn {

/// The start-up window, on screen only when that is too small for the game: asks whether to switch
/// the display. It closes once another window is next.
class FrmYesNoHelp : public QDialog {
public:
    /// `helpFolder` holds the help; what is given here outlives the window.
    FrmYesNoHelp(const std::string& helpFolder, DisplaySettings& display, Computer& computer,
                 const std::string& strCommandLine);

    /// Starts the program up. Gives false when nothing is to be asked.
    bool Asks();

    /// The next window, and the game's path when it is the game window.
    const StartUpWindow& Shown() const { return window_; }

    void reject() override;  ///< Escape and the close box answer No

private:
    void Lay();
    void Run(const char* event, void (*handler)(StartUpWindow&));

    QtDialogs dialogs_;
    HelpProgram help_;
    StartUpWindow window_;
    QPushButton cmdYes_;
    QPushButton cmdNo_;
    QPushButton cmdHelp_;
};

}  // namespace qarn
