#include "rules/step_texts.h"

namespace qarn {

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
        case StepResult::DirectAttack:
            break;
    }
    return {};
}

}  // namespace qarn
