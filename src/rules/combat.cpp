#include "rules/combat.h"

#include <string>
#include <variant>

#include "core/game.h"
#include "core/turn_cycle.h"
#include "rules/attack_mode.h"
#include "rules/casualties.h"
#include "rules/check_boxes.h"
#include "rules/end_move.h"
#include "rules/questions/attack.h"
#include "rules/questions/odds.h"
#include "rules/questions/sides.h"
#include "rules/terrain.h"
#include "rules/texts.h"

namespace qarn {
namespace {

// Says why the click counts for nothing.
void Refuse(Game& game, AttackRefusal refusal) {
    switch (refusal) {
        case AttackRefusal::OnItself:
            Status(game, "You can not attack yourself.");
            break;
        case AttackRefusal::NotAdjacent:
            Status(game, "You can only attack a square adjacent to your square.");
            break;
        case AttackRefusal::NobodyThere:
            Status(game, "There is no one in the square you selected.");
            break;
        case AttackRefusal::Inanimate:
            Status(game, game.record.blnAttackerChosen
                             ? "You can not attack an inanimate thing."
                             : "Inanimate things can not attack another thing.");
            break;
        case AttackRefusal::WrongSide:
            Status(game, game.record.blnAttackerChosen
                             ? "You can only attack your opponent's groups."
                             : "You can only attack with your own groups.");
            break;
        case AttackRefusal::Barred:
            Status(game, "You can not attack that square due to geographical barriers.");
            break;
        case AttackRefusal::None:
            break;
    }
}

// The terrain under the attackers adds nothing to their units.
void ChooseAttacker(Game& game, Square S) {
    GameRecord& record = game.record;
    const AttackAnswer attackers = AskAttackers(PositionOf(record), S);
    if (attackers.refusal != AttackRefusal::None) {
        Refuse(game, attackers.refusal);
        return;
    }
    record.blnAttackerChosen = true;
    record.blnTargetPhase = true;
    record.bytAnchorX = record.bytLastX = S.X;
    record.bytAnchorY = record.bytLastY = S.Y;
    record.bytAttackUnits = attackers.attackUnits;
    Status(game, "Select the square you would like to attack.");
}

void ReturnToAnchor(GameRecord& record) {
    record.bytLastX = record.bytAnchorX;
    record.bytLastY = record.bytAnchorY;
    record.blnAttackWon = false;
}

// Gives false when the target was refused.
bool AcceptsTarget(Game& game, Square S, const AttackAnswer& target, AttackResult& bytResult) {
    GameRecord& record = game.record;
    Refuse(game, target.refusal);
    if (target.refusal != AttackRefusal::None && target.refusal != AttackRefusal::Barred) {
        return false;
    }
    record.bytLastX = S.X;
    record.bytLastY = S.Y;
    record.bytAttackUnits = target.attackUnits;
    record.bytDefenseUnits = target.defenseUnits;
    if (target.refusal == AttackRefusal::None) return true;

    ReturnToAnchor(record);
    bytResult = AttackResult::NotPossible;
    return false;
}

bool ConfirmsBadOdds(Game& game, bool blnDirect, Square S, AttackResult& bytResult) {
    GameRecord& record = game.record;
    if (!AreOddsBad(record.bytAttackUnits, record.bytDefenseUnits)) return true;
    const Answer answer =
        game.ports.dialogs.Show({.Title = "Not Enough Attack Units",
                                 .Text = "You will lose if you try to attack this group. Continue?",
                                 .Offered = Buttons::YesNo});
    if (answer == Answer::Yes) return true;

    ReturnToAnchor(record);
    if (blnDirect) {
        const bool abbeyTarget = record.bytTerrain[S.X][S.Y] == Abbey;
        bytResult = abbeyTarget ? AttackResult::CancelledAtAbbey : AttackResult::NotPossible;
    }
    return false;
}

// An attack made with the Attack command ends the turn, and with it a move that was under way: the
// computer can have begun one with attack mode on.
void AbandonMove(Game& game) {
    EndMove(game.record);
    HideCheckBoxes(game.controls);
}

void BeginAttack(Game& game) {
    GameRecord& record = game.record;
    game.controls.cmdAttack.Enabled = false;
    game.controls.cmdAttack.Caption = "Attacking...";
    record.blnAttackerChosen = false;
    record.blnTargetPhase = false;
    record.blnAttacking = true;
    if (record.bytAttackUnits < record.bytDefenseUnits) {
        record.bytDefenseUnits = record.bytAttackUnits;
    }
    record.bytThreshold =
        static_cast<std::uint8_t>(ThresholdOf(record.bytAttackUnits, record.bytDefenseUnits));
}

Attacked DescribeAttack(const GameRecord& record, bool blnDirect, Square S) {
    return {.side = record.bytTurn,
            .from = {record.bytAnchorX, record.bytAnchorY},
            .to = S,
            .direct = blnDirect,
            .attack = record.bytAttackUnits,
            .defense = record.bytDefenseUnits,
            .threshold = record.bytThreshold};
}

void BurnDown(Game& game, bool blnDirect, Square S, const AttackAnswer& target,
              AttackResult& bytResult) {
    GameRecord& record = game.record;
    const bool fortress = record.bytTerrain[S.X][S.Y] == Fortress;
    record.bytTerrain[S.X][S.Y] = target.ruins;
    PaintSquare(game, S.X, S.Y);
    game.happenings.emplace_back(DescribeAttack(record, blnDirect, S));
    game.happenings.emplace_back(Burned{S, target.ruins});
    game.ports.dialogs.Tell(fortress ? "You have burned down Gallowrock."
                                     : "You have burned down the Abbey.");
    cmdAttack_Click(game);
    bytResult = AttackResult::Won;
    record.blnAttackWon = true;
    ShowTurn(game, !target.turnStays);
}

void ShowOdds(Game& game) {
    const GameRecord& record = game.record;
    const int threshold = record.bytThreshold;
    Status(game, "You have " + std::to_string(record.bytAttackUnits) +
                     " attack units and your opponent has " +
                     std::to_string(record.bytDefenseUnits) + " defense units.");
    game.ports.dialogs.Tell("You will win if you roll a " + std::to_string(threshold - 1) +
                            " or less, tie if you roll a " + std::to_string(threshold) +
                            ", and lose if you roll a " + std::to_string(threshold + 1) +
                            " and up. Select OK to roll");
}

std::string TextOf(AttackResult result) {
    if (result == AttackResult::Won) return "and won the attack!";
    if (result == AttackResult::Tie) return "and retreated without any losses.";
    return "and lost the attack.";
}

AttackResult Roll(Game& game, bool blnDirect, Square S) {
    GameRecord& record = game.record;
    const int roll = RollDie(game.ports.random);
    const AttackResult result = ResultOfRoll(roll, record.bytThreshold);
    record.blnAttackWon = result == AttackResult::Won;
    Attacked attack = DescribeAttack(record, blnDirect, S);
    attack.roll = roll;
    attack.result = result;
    game.happenings.emplace_back(attack);
    if (result == AttackResult::Lost) CountPeople(game);
    game.ports.dialogs.Tell("You rolled a " + std::to_string(roll) + " " + TextOf(result));
    return result;
}

void EliminateDefenders(Game& game, Square S) {
    const Position position = PositionOf(game.record);
    EliminateAll(game, CharactersOf(position, DefendersOf(position, PeopleOn(position, S))));
    CountPeople(game);
}

// The attack is the last one of this event.
void NoteSecondRoll(Game& game, int roll) {
    for (Happening& happening : game.happenings) {
        if (auto* attack = std::get_if<Attacked>(&happening)) attack->secondRoll = roll;
    }
}

// Gives true when the winner pays for the victory with a character.
bool RollsLossAfterWin(Game& game) {
    const int roll = RollDie(game.ports.random);
    NoteSecondRoll(game, roll);
    if (roll == rollThatCosts) {
        game.ports.dialogs.Tell("You rolled a three and lost one character.");
        CountPeople(game);
        return true;
    }
    game.ports.dialogs.Tell("You rolled a " + std::to_string(roll) +
                            " and will not lose a character.");
    return false;
}

void FinishAttack(Game& game, bool blnDirect) {
    game.record.blnResetMoveButton = true;
    cmdAttack_Click(game);
    CountPeople(game);
    ShowTurn(game, !blnDirect);
}

void AttackTarget(Game& game, bool blnDirect, Square S, AttackResult& bytResult) {
    const GameRecord& record = game.record;
    const AttackAnswer target = AskTarget(PositionOf(record), {record.bytLastX, record.bytLastY},
                                          record.bytAttackUnits, S, blnDirect);
    if (!AcceptsTarget(game, S, target, bytResult)) return;
    if (!ConfirmsBadOdds(game, blnDirect, S, bytResult)) return;

    if (!blnDirect) AbandonMove(game);
    BeginAttack(game);
    if (record.bytAttackUnits == record.bytDefenseUnits) {
        Status(game, "Your attack units can not penetrate your enemy's defense.");
    } else {
        if (target.burns) {
            BurnDown(game, blnDirect, S, target, bytResult);
            return;
        }
        ShowOdds(game);
    }

    bytResult = Roll(game, blnDirect, S);
    bool losesCharacter = bytResult == AttackResult::Lost;
    if (bytResult == AttackResult::Won) {
        EliminateDefenders(game, S);
        losesCharacter = RollsLossAfterWin(game);
    }
    if (losesCharacter && StartCasualtyChoice(game)) return;
    FinishAttack(game, blnDirect);
}

}  // namespace

void AttackSquare(Game& game, bool blnDirect, std::uint8_t bytX, std::uint8_t bytY,
                  AttackResult& bytResult) {
    if (game.record.blnAttackerChosen) {
        AttackTarget(game, blnDirect, {bytX, bytY}, bytResult);
    } else {
        ChooseAttacker(game, {bytX, bytY});
    }
}

int RollDie(RandomNumbers& random) { return static_cast<int>(random.Next() * dieSides) + 1; }

}  // namespace qarn
