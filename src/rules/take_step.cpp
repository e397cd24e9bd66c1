#include "rules/take_step.h"

#include "core/board_display.h"
#include "core/game.h"
#include "core/position.h"
#include "rules/movement.h"
#include "rules/step.h"
#include "rules/step_texts.h"
#include "rules/texts.h"

namespace qarn {
namespace {

void FillMobility(GameRecord& record) {
    if (record.blnMobilitySet) return;
    Strength sums;
    SumStrength(record, Selection(record), sums);
    record.bytMobilityLeft = sums.Mobility;
    record.blnMobilitySet = true;
}

void PlaceSelection(Game& game, Square square) {
    GameRecord& record = game.record;
    for (const std::uint8_t i : Selection(record)) {
        record.People[i].LocationX = square.X;
        record.People[i].LocationY = square.Y;
    }
    RedrawSquare(game, record.bytGroupX, record.bytGroupY);
    RedrawSquare(game, square.X, square.Y);
    record.bytGroupX = square.X;
    record.bytGroupY = square.Y;
}

// The first of those who move is a character: these stand before the transport pieces.
std::uint8_t SideOfSelection(const GameRecord& record) {
    return record.People[record.bytSelectedPeople[1]].Side;
}

void StepOnto(Game& game, Square D) {
    GameRecord& record = game.record;
    const Square from{record.bytGroupX, record.bytGroupY};
    PlaceSelection(game, D);
    game.happenings.emplace_back(
        Moved{SideOfSelection(record), PeopleSet::Of(Selection(record)), {from, D}});
    record.bytMobilityLeft = static_cast<std::uint8_t>(record.bytMobilityLeft - record.bytStepCost);
    Status(game, "You have " + std::to_string(record.bytMobilityLeft) + " mobility units left.");
    if (record.bytMobilityLeft == 0) {
        game.controls.lblStatus.Caption += "\nClick Done &Moving";
        record.blnMoveMode = false;
    }
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
        case StepResult::DirectAttack:
            break;
    }
}

}  // namespace

void TakeStep(Game& game) {
    GameRecord& record = game.record;
    const Square D{record.bytCurrentX, record.bytCurrentY};
    FillMobility(record);
    const StepAnswer step = AskStep(PositionOf(record),
                                    {PeopleSet::Of(Selection(record)),
                                     {record.bytGroupX, record.bytGroupY},
                                     record.bytMobilityLeft},
                                    D);
    record.bytStepCost = step.cost;
    const StepResult r = CheckStep(game, step, D);
    const bool stepped =
        r == StepResult::PlainStep || r == StepResult::JoinedOwn || r == StepResult::AttackWon;
    if (stepped && step.enters) StepOnto(game, D);
    ShowStepResult(game, r);
}

void ReturnToStart(Game& game) {
    GameRecord& record = game.record;
    const Square start{record.bytStartX, record.bytStartY};
    PlaceSelection(game, start);
    game.happenings.emplace_back(Returned{PeopleSet::Of(Selection(record)), start});
    record.bytMobilityLeft = 0;
    record.blnMobilitySet = false;
    record.bytStepCost = 0;
}

}  // namespace qarn
