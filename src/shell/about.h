#pragma once

#include "core/controls.h"

namespace qarn {

struct Game;

/// The controls of the about window. The window is open exactly while the menu item mnuAbout is
/// disabled; it is not modal.
struct AboutControls {
    AboutControls();

    std::string Caption = "About Thornmere Series Tactical Game";
    Label lblProductNameVersion;
    Label lblCreditsHeading{.Caption = "Credits"};
    Label lblCredits;
    Label lblLegalHeading{.Caption = "Legal notices"};
    Label lblLegalNotices;
    Button cmdExit{.Caption = "E&xit"};  ///< closes the window
};

/// The menu item Help > About: opens the window.
void mnuAbout_Click(Game& game);

/// The about window has closed, by its button or otherwise.
void frmAbout_Unload(Game& game);

}  // namespace qarn
