#include "rules/movement.h"

#include "core/details_mode.h"
#include "core/game.h"
#include "core/turn_cycle.h"
#include "rules/casualties.h"
#include "rules/check_boxes.h"
#include "rules/end_move.h"
#include "rules/questions/step.h"
#include "rules/selection.h"
#include "rules/take_step.h"
#include "rules/texts.h"

namespace qarn {
namespace {

void EnterMoveMode(Game& game) {
    Controls& controls = game.controls;
    EndMove(game.record);
    game.record.blnMoveMode = true;
    controls.cmdMove.Caption = "Done &Moving";
    Status(game, controls.mnuPeopleDetails.Checked
                     ? "You are currently in details mode.\nTo resume moving click on &Details."
                     : "You are currently in move mode." + pickStart);
    controls.cmdAttack.Enabled = false;
    controls.File.Enabled = false;
    controls.cmdMove.Enabled = false;
}

bool WouldLandOnWater(const GameRecord& record) {
    return record.blnMoveUnderWay && !record.blnChoosing &&
           IsLoneBirdOnWater(PositionOf(record), PeopleSet::Of(Selection(record)),
                             {record.bytGroupX, record.bytGroupY});
}

void LeaveMoveMode(Game& game) {
    Controls& controls = game.controls;
    const bool birdOnWater = WouldLandOnWater(game.record);
    LeaveDetailsMode(game);
    EndMove(game.record);
    controls.cmdMove.Caption = "&Move";
    HideCheckBoxes(controls);
    controls.cmdAttack.Enabled = true;
    controls.File.Enabled = true;
    controls.cmdMove.Enabled = true;

    if (birdOnWater) {
        game.ports.dialogs.Tell(
            "Birds can not land on water.  The bird will be placed back at its "
            "starting location.");
        MoveClick(game, true);
        ShowTurn(game, false);
        controls.lblStatus.Caption += "\nReady!";
    } else {
        ShowTurn(game, true);
    }
}

}  // namespace

void cmdMove_Click(Game& game) {
    // Disabled for a person then, but the computer's turn may come in the middle of their attack.
    if (game.record.blnCasualtyPending) return;
    if (game.controls.cmdMove.Caption == "&Move") {
        EnterMoveMode(game);
    } else {
        LeaveMoveMode(game);
    }
}

void MoveClick(Game& game, bool blnReturnToStart) {
    const GameRecord& record = game.record;
    if (blnReturnToStart) {
        ReturnToStart(game);
    } else if (record.blnMoveFinished && game.controls.cmdMove.Enabled) {
        return;
    } else if (!record.blnMoveUnderWay) {
        ChooseStart(game);
    } else {
        TakeStep(game);
    }
}

void cmdDoneSel_Click(Game& game) {
    if (game.record.blnCasualtyPending) {
        ConfirmCasualty(game);
    } else {
        ConfirmSelection(game);
    }
}

void ShowMobility(Game& game, std::uint8_t units) {
    cmdDoneSel_Click(game);
    game.controls.lblStatus.Caption = "You have " + std::to_string(units) + " mobility units.";
}

}  // namespace qarn
