#include "shell/about.h"

#include "core/game.h"
#include "shell/program_texts.h"

namespace qarn {

AboutControls::AboutControls() {
    lblProductNameVersion.Caption = ProductNameVersion();
    lblCredits.Caption = Credits();
    lblLegalNotices.Caption = LegalNotices();
}

void mnuAbout_Click(Game& game) { game.controls.mnuAbout.Enabled = false; }

void frmAbout_Unload(Game& game) { game.controls.mnuAbout.Enabled = true; }

}  // namespace qarn
