#include "core/details_mode.h"

#include "core/game.h"

namespace qarn {

void EnterDetailsMode(Game& game) {
    GameRecord& record = game.record;
    Controls& controls = game.controls;

    record.blnRememberedMove = controls.cmdMove.Enabled;
    record.blnRememberedAttack = controls.cmdAttack.Enabled;
    record.blnRememberedDoneSel = controls.cmdDoneSel.Enabled;
    controls.cmdMove.Enabled = false;
    controls.cmdAttack.Enabled = false;
    controls.cmdDoneSel.Enabled = false;

    record.blnDetailsMode = true;
    controls.mnuPeopleDetails.Checked = true;
    record.strRememberedStatus = controls.lblStatus.Caption;
    controls.lblStatus.Caption = "Click on the Square Information button to resume playing.";
    controls.lblDetailMore.Caption = "Click on the square(s) you would like more information on.";
}

void LeaveDetailsMode(Game& game) {
    GameRecord& record = game.record;
    Controls& controls = game.controls;
    if (!record.blnDetailsMode) return;

    record.blnDetailsMode = false;
    controls.mnuPeopleDetails.Checked = false;
    controls.lblStatus.Caption = record.strRememberedStatus;
    controls.cmdMove.Enabled = record.blnRememberedMove;
    controls.cmdAttack.Enabled = record.blnRememberedAttack;
    controls.cmdDoneSel.Enabled = record.blnRememberedDoneSel;
    controls.fraQuickDetails.Visible = false;
}

}  // namespace qarn
