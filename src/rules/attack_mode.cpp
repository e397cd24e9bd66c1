#include "rules/attack_mode.h"

#include "core/details_mode.h"
#include "core/game.h"
#include "core/turn_cycle.h"

namespace qarn {

void EnterAttackMode(Game& game) {
    Controls& controls = game.controls;
    game.record.blnAttackMode = true;
    controls.cmdAttack.Caption = "&Retreat";
    controls.lblStatus.Caption =
        controls.mnuPeopleDetails.Checked
            ? "You are currently in attack mode.\nTo resume moving press CTRL+D or select "
              "&Details from the &Details menu."
            : "You are currently in attack mode\nSelect the attacker(s)'s square.";
    controls.cmdMove.Enabled = false;
    controls.File.Enabled = false;
    game.record.blnMoveMode = false;
}

namespace {

void LeaveAttackMode(Game& game) {
    GameRecord& record = game.record;
    Controls& controls = game.controls;
    LeaveDetailsMode(game);
    record.blnAttackMode = false;
    record.blnAttackerChosen = false;
    record.blnAttacking = false;
    if (record.Action.blnAttacks) record.Action.blnOwnMove = false;
    controls.cmdAttack.Caption = "&Attack";
    controls.cmdAttack.Enabled = true;
    controls.cmdMove.Enabled = true;
    controls.File.Enabled = true;
    ShowTurn(game, false);
    if (record.blnResetMoveButton) controls.cmdMove.Caption = "&Move";
}

}  // namespace

void cmdAttack_Click(Game& game) {
    if (game.record.blnAttackMode) {
        LeaveAttackMode(game);
    } else {
        EnterAttackMode(game);
    }
}

}  // namespace qarn
