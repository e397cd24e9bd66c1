#include "rules/step.h"

#include "core/game.h"
#include "rules/attack_mode.h"
#include "rules/combat.h"

namespace qarn {
namespace {

bool WantsToAttack(Game& game) {
    return game.ports.dialogs.Show({.Title = "Move",
                                    .Text = "You will have to initiate a direct attack to proceed. "
                                            " Do you want to attack?",
                                    .Offered = Buttons::YesNo}) == Answer::Yes;
}

StepResult ResultOfAttack(AttackResult result) {
    switch (result) {
        case AttackResult::Won:
            return StepResult::AttackWon;
        case AttackResult::Tie:
            return StepResult::AttackTied;
        case AttackResult::Lost:
            return StepResult::AttackLost;
        default:
            return StepResult::AttackCancelled;
    }
}

StepResult AttackDirectly(Game& game, Square D) {
    GameRecord& record = game.record;
    if (!WantsToAttack(game)) {
        record.blnAttackMode = true;
        return StepResult::AttackCancelled;
    }
    AttackResult result = AttackResult::NotPossible;
    record.blnAttackerChosen = false;
    EnterAttackMode(game);
    AttackSquare(game, true, record.bytGroupX, record.bytGroupY, result);
    AttackSquare(game, true, D.X, D.Y, result);
    return ResultOfAttack(result);
}

}  // namespace

StepResult CheckStep(Game& game, const StepAnswer& step, Square D) {
    switch (step.result) {
        case StepResult::DirectAttack:
            return AttackDirectly(game, D);
        case StepResult::AttackCancelled:
            game.ports.dialogs.Tell("You can not directly attack here.");
            return step.result;
        default:
            return step.result;
    }
}

}  // namespace qarn
