#include "rules/movement.h"

#include <algorithm>

#include "core/board_display.h"
#include "core/details_mode.h"
#include "core/turn_cycle.h"
#include "rules/attack_mode.h"
#include "rules/casualties.h"
#include "rules/check_boxes.h"
#include "rules/end_move.h"
#include "rules/step.h"
#include "rules/terrain.h"

namespace qarn {
namespace {

const std::string pickStart = "\nSelect the square you will be starting your move from.";

void Status(Game& game, const std::string& text) { game.controls.lblStatus.Caption = text; }

// ---- Entering and leaving move mode ----

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

bool IsLoneBirdOnWater(const GameRecord& record) {
    return record.blnMoveUnderWay && !record.blnChoosing && record.bytSelectedCount == 1 &&
           IsBird(record.People[record.bytSelectedPeople[1]]) &&
           IsWater(record.bytTerrain.at(record.bytGroupX).at(record.bytGroupY));
}

void LeaveMoveMode(Game& game) {
    Controls& controls = game.controls;
    const bool birdOnWater = IsLoneBirdOnWater(game.record);
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

// ---- The starting square ----

void RefuseStart(Game& game, const std::string& text) {
    game.record.blnMoveUnderWay = false;
    Status(game, text);
}

void ChooseStart(Game& game) {
    GameRecord& record = game.record;
    record.bytStartX = record.bytGroupX = record.bytCurrentX;
    record.bytStartY = record.bytGroupY = record.bytCurrentY;
    record.bytMobilityLeft = 0;
    record.blnMobilitySet = false;
    record.bytStepCost = 0;
    record.blnMoveUnderWay = true;

    const SquareList list = LocationOfPeople(record, record.bytStartX, record.bytStartY);
    if (list.bytNumberofPeople == 0) {
        RefuseStart(game, "There is no one here." + pickStart);
    } else if (list.bytTotalPeople == 0) {
        RefuseStart(game, "The cart and/or boat can not go on its own." + pickStart);
    } else if (record.People[list.bytPeopleNumbers[1]].Side != record.bytTurn) {
        RefuseStart(game, "You can not move your opponent's pieces.");
    } else {
        Status(game, "Choose the item(s) you would like to move.");
        ListInCheckBoxes(game, list, true);
        game.controls.SetFocus = Control::chkFirst;
        record.blnMoveMode = false;
        record.blnChoosing = true;
    }
}

// ---- The selection ----

void SelectTicked(Game& game) {
    GameRecord& record = game.record;
    const std::vector<std::uint8_t> ticked = TickedPeople(game);
    std::copy(ticked.begin(), ticked.end(), record.bytSelectedPeople.begin() + 1);
    record.bytSelectedCount = static_cast<std::uint8_t>(ticked.size());
}

bool IsSelected(const GameRecord& record, std::string_view name) {
    const auto selection = Selection(record);
    return std::any_of(selection.begin(), selection.end(),
                       [&](std::uint8_t i) { return record.People[i].Name == name; });
}

bool IsCharacterSelected(const GameRecord& record) {
    const auto selection = Selection(record);
    return std::any_of(selection.begin(), selection.end(),
                       [&](std::uint8_t i) { return !IsTransport(record.People[i]); });
}

void ConfirmSelection(Game& game) {
    GameRecord& record = game.record;
    Controls& controls = game.controls;
    SelectTicked(game);
    if (record.bytSelectedCount == 0) {
        Status(game, "You did not select anyone.");
        controls.SetFocus = Control::chkFirst;
        return;
    }
    if (IsSelected(record, "Boat") && !IsCharacterSelected(record)) {
        Status(game, "You must have someone going with the boat.");
        return;
    }
    if (IsSelected(record, "Cart") && !IsCharacterSelected(record)) {
        Status(game, "You must have someone going with the cart.");
        return;
    }

    Strength sums;
    SumStrength(record, Selection(record), sums);
    Status(game, "You have " + std::to_string(sums.Mobility) +
                     " mobility units.\nSelect your destination.");
    controls.cmdDoneSel.Visible = false;
    for (CheckBox& chkItem : controls.chkItems) chkItem.Enabled = false;
    record.blnMoveMode = true;
    record.blnChoosing = false;
    controls.cmdMove.Enabled = true;
    controls.SetFocus = Control::cmdMove;
}

// ---- One step ----

void FillMobility(GameRecord& record) {
    if (record.blnMobilitySet) return;
    Strength sums;
    SumStrength(record, Selection(record), sums);
    record.bytMobilityLeft = sums.Mobility;
    record.blnMobilitySet = true;
}

void PlaceSelection(Game& game, std::uint8_t X, std::uint8_t Y) {
    GameRecord& record = game.record;
    for (const std::uint8_t i : Selection(record)) {
        record.People[i].LocationX = X;
        record.People[i].LocationY = Y;
    }
    RedrawSquare(game, record.bytGroupX, record.bytGroupY);
    RedrawSquare(game, X, Y);
    record.bytGroupX = X;
    record.bytGroupY = Y;
}

void StepOnto(Game& game, std::uint8_t X, std::uint8_t Y) {
    GameRecord& record = game.record;
    PlaceSelection(game, X, Y);
    record.bytMobilityLeft = static_cast<std::uint8_t>(record.bytMobilityLeft - record.bytStepCost);
    Status(game, "You have " + std::to_string(record.bytMobilityLeft) + " mobility units left.");
    if (record.bytMobilityLeft == 0) {
        game.controls.lblStatus.Caption += "\nClick Done &Moving";
        record.blnMoveMode = false;
    }
}

// A plain step has nothing to say beyond the mobility units left.
std::string TextOf(StepResult r) {
    switch (r) {
        case StepResult::PlainStep:
            return {};
        case StepResult::JoinedOwn:
            return "You stepped into a square with characters from your side.";
        case StepResult::AttackWon:
            return "You won the attack.";
        case StepResult::Impossible:
            return "It is physically imposible to go there.";
        case StepResult::NotEnoughMobility:
            return "You do not have enough mobility units to go there.";
        case StepResult::TooManyTransports:
            return "There will be more than 7 transportation pieces in that unit.";
        case StepResult::TooManyCharacters:
            return "There will be more than 4 characters in that unit.";
        case StepResult::WaterWithoutBoat:
            return "You can not go on water without a boat.";
        case StepResult::AttackTied:
            return "The attack was a draw.";
        case StepResult::AttackLost:
            return "You lost the attack.";
        case StepResult::AttackCancelled:
            return "The attack was canceled.";
    }
    return {};
}

// Leaves the attack that was not made, and puts the move back as it stood before the question. That
// is no end of a turn, so it does not go through the attack button, which would announce one.
void ResumeMove(Game& game) {
    GameRecord& record = game.record;
    record.blnAttackMode = false;
    record.blnAttackerChosen = false;
    game.controls.cmdAttack.Caption = "&Attack";
    game.controls.cmdAttack.Enabled = false;
    game.controls.File.Enabled = false;
    ShowMobility(game, record.bytMobilityLeft);
}

void FinishMove(Game& game, StepResult r) {
    GameRecord& record = game.record;
    Controls& controls = game.controls;
    controls.lblStatus.Caption += "\nYour move is finished. Click Done &Moving.";
    controls.cmdAttack.Enabled = false;
    controls.cmdAttack.Caption = "&Attack";
    record.blnMoveFinished = true;
    if (record.blnCasualtyPending) {
        Status(game, "Select the character which died in the attack.");
    } else if (r == StepResult::AttackWon || r == StepResult::AttackTied) {
        record.blnMoveMode = true;
        controls.cmdMove.Caption = "Done &Moving";
    }
}

void ShowStepResult(Game& game, StepResult r) {
    GameRecord& record = game.record;
    switch (r) {
        case StepResult::PlainStep:
            break;
        case StepResult::JoinedOwn:
        case StepResult::AttackWon:
        case StepResult::AttackTied:
        case StepResult::AttackLost:
            Status(game, TextOf(r));
            FinishMove(game, r);
            break;
        case StepResult::TooManyTransports:
            Status(game, TextOf(r));
            break;
        case StepResult::Impossible:
        case StepResult::NotEnoughMobility:
        case StepResult::TooManyCharacters:
        case StepResult::WaterWithoutBoat:
        case StepResult::AttackCancelled:
            if (r == StepResult::AttackCancelled) ResumeMove(game);
            Status(game, TextOf(r) + "\nPick another destination.");
            if (r == StepResult::NotEnoughMobility) {
                record.bytCurrentX = record.bytGroupX;
                record.bytCurrentY = record.bytGroupY;
            }
            break;
    }
}

void TakeStep(Game& game) {
    GameRecord& record = game.record;
    const std::uint8_t X = record.bytCurrentX;
    const std::uint8_t Y = record.bytCurrentY;
    const std::uint8_t T = record.bytTerrain.at(X).at(Y);

    record.bytStepCost = StepCost(record, T);
    FillMobility(record);
    const StepResult r = CheckStep(game, X, Y);
    const bool stepped =
        r == StepResult::PlainStep || r == StepResult::JoinedOwn || r == StepResult::AttackWon;
    if (stepped && !(T == Abbey && record.bytTurn == 2)) StepOnto(game, X, Y);
    ShowStepResult(game, r);
}

void ReturnToStart(Game& game) {
    GameRecord& record = game.record;
    PlaceSelection(game, record.bytStartX, record.bytStartY);
    record.bytMobilityLeft = 0;
    record.blnMobilitySet = false;
    record.bytStepCost = 0;
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
