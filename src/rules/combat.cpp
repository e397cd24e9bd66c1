#include "rules/combat.h"

#include <cstdlib>

#include "core/eight_bit.h"
#include "core/turn_cycle.h"
#include "rules/attack_mode.h"
#include "rules/casualties.h"
#include "rules/check_boxes.h"
#include "rules/end_move.h"
#include "rules/terrain.h"

namespace qarn {
namespace {

// The square that was clicked, as the steps of the attack see it.
struct ClickedSquare {
    std::uint8_t X;
    std::uint8_t Y;
    std::uint8_t terrain;
    bool landmarkTarget;
    SquareList people;
    Strength strength;
};

void Status(Game& game, const std::string& text) { game.controls.lblStatus.Caption = text; }

ClickedSquare LookAt(const GameRecord& record, std::uint8_t X, std::uint8_t Y) {
    ClickedSquare S{.X = X,
                    .Y = Y,
                    .terrain = record.bytTerrain.at(X).at(Y),
                    .landmarkTarget = false,
                    .people = LocationOfPeople(record, X, Y),
                    .strength = {}};
    const bool targetClick = record.blnAttackerChosen && record.blnTargetPhase;
    S.landmarkTarget = targetClick && (S.terrain == Fortress || S.terrain == Abbey);
    SumStrength(record, S.people.People(), S.strength);
    return S;
}

// Once the attacker is chosen the target must be its neighbour.
bool IsInReach(Game& game, const ClickedSquare& S) {
    const GameRecord& record = game.record;
    if (!record.blnAttackerChosen) return true;
    const int distance = std::abs(S.X - record.bytLastX) + std::abs(S.Y - record.bytLastY);
    if (distance == 0) Status(game, "You can not attack yourself.");
    if (distance > 1) Status(game, "You can only attack a square adjacent to your square.");
    return distance == 1;
}

bool IsSomeoneThere(Game& game, const ClickedSquare& S) {
    if (S.people.bytNumberofPeople > 0 || S.landmarkTarget) return true;
    Status(game, "There is no one in the square you selected.");
    return false;
}

bool IsAlive(Game& game, const ClickedSquare& S) {
    if (S.strength.Attack > 0 || S.landmarkTarget) return true;
    Status(game, game.record.blnAttackerChosen ? "You can not attack an inanimate thing."
                                               : "Inanimate things can not attack another thing.");
    return false;
}

// The terrain under the attackers adds nothing to their units.
void ChooseAttacker(Game& game, const ClickedSquare& S) {
    GameRecord& record = game.record;
    record.blnAttackerChosen = true;
    record.blnTargetPhase = true;
    record.bytAnchorX = record.bytLastX = S.X;
    record.bytAnchorY = record.bytLastY = S.Y;
    record.bytAttackUnits = S.strength.Attack;
    Status(game, "Select the square you would like to attack.");
}

void ReturnToAnchor(GameRecord& record) {
    record.bytLastX = record.bytAnchorX;
    record.bytLastY = record.bytAnchorY;
    record.blnAttackWon = false;
}

bool AllowsTerrain(Game& game, bool blnDirect, const ClickedSquare& S, AttackResult& bytResult) {
    GameRecord& record = game.record;
    const TerrainEffect effect = TerrainModifiers(record, S.X, S.Y, true, record.bytAttackUnits,
                                                  S.strength.Defense, blnDirect);
    record.bytLastX = S.X;
    record.bytLastY = S.Y;
    record.bytAttackUnits = effect.bytAttackOut;
    record.bytDefenseUnits = effect.bytDefenseOut;
    if (effect.blnAllowed) return true;

    ReturnToAnchor(record);
    Status(game, "You can not attack that square due to geographical barriers.");
    bytResult = AttackResult::NotPossible;
    return false;
}

bool ConfirmsBadOdds(Game& game, bool blnDirect, const ClickedSquare& S, AttackResult& bytResult) {
    GameRecord& record = game.record;
    if (record.bytAttackUnits > record.bytDefenseUnits + 2) return true;
    const Answer answer =
        game.ports.dialogs.Show({.Title = "Not Enough Attack Units",
                                 .Text = "You will lose if you try to attack this group. Continue?",
                                 .Offered = Buttons::YesNo});
    if (answer == Answer::Yes) return true;

    ReturnToAnchor(record);
    if (blnDirect) {
        bytResult = S.terrain == Abbey ? AttackResult::CancelledAtAbbey : AttackResult::NotPossible;
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
    if (record.bytAttackUnits < record.bytDefenseUnits) {
        record.bytDefenseUnits = record.bytAttackUnits;
    }
    record.bytThreshold =
        static_cast<std::uint8_t>((record.bytAttackUnits - record.bytDefenseUnits) / 2);
}

bool IsGallowrock(const Game& game, const ClickedSquare& S) {
    return game.controls.lblTerrKey[Fortress].Caption == "Gallowrock" && S.terrain == Fortress;
}

void BurnDown(Game& game, const ClickedSquare& S, Terrain ruins, const std::string& text,
              AttackResult& bytResult) {
    game.record.bytTerrain.at(S.X).at(S.Y) = ruins;
    PaintSquare(game, S.X, S.Y);
    game.ports.dialogs.Tell(text);
    cmdAttack_Click(game);
    bytResult = AttackResult::Won;
    game.record.blnAttackWon = true;
    ShowTurn(game, true);
}

// Gives true when the square was burned down, which ends the attack.
bool BurnsDown(Game& game, bool blnDirect, const ClickedSquare& S, AttackResult& bytResult) {
    if (IsGallowrock(game, S)) {
        BurnDown(game, S, Sand, "You have burned down Gallowrock.", bytResult);
        return true;
    }
    if (S.terrain == Abbey && !blnDirect) {
        BurnDown(game, S, Plain, "You have burned down the Abbey.", bytResult);
        return true;
    }
    return false;
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

AttackResult Roll(Game& game) {
    GameRecord& record = game.record;
    const int roll = RollDie(game.ports.random);
    AttackResult result = AttackResult::Tie;
    std::string text = "and retreated without any losses.";
    record.blnAttackWon = false;
    if (roll < record.bytThreshold) {
        result = AttackResult::Won;
        text = "and won the attack!";
        record.blnAttackWon = true;
    } else if (roll > record.bytThreshold) {
        result = AttackResult::Lost;
        text = "and lost the attack.";
        CountPeople(game);
    }
    game.ports.dialogs.Tell("You rolled a " + std::to_string(roll) + " " + text);
    return result;
}

void EliminateDefenders(Game& game, const ClickedSquare& S) {
    for (const std::uint8_t i : S.people.People()) {
        if (!IsTransport(game.record.People[i])) Eliminate(game, i);
    }
    CountPeople(game);
}

// Gives true when the winner pays for the victory with a character.
bool RollsLossAfterWin(Game& game) {
    const int roll = RollDie(game.ports.random);
    if (roll == 3) {
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

void AttackTarget(Game& game, bool blnDirect, const ClickedSquare& S, AttackResult& bytResult) {
    const GameRecord& record = game.record;
    if (!AllowsTerrain(game, blnDirect, S, bytResult)) return;
    if (!ConfirmsBadOdds(game, blnDirect, S, bytResult)) return;

    if (!blnDirect) AbandonMove(game);
    BeginAttack(game);
    if (record.bytAttackUnits == record.bytDefenseUnits) {
        Status(game, "Your attack units can not penetrate your enemy's defense.");
    } else {
        if (BurnsDown(game, blnDirect, S, bytResult)) return;
        ShowOdds(game);
    }

    bytResult = Roll(game);
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
    const ClickedSquare S = LookAt(game.record, bytX, bytY);
    if (!IsInReach(game, S) || !IsSomeoneThere(game, S) || !IsAlive(game, S)) return;

    if (!game.record.blnAttackerChosen) {
        ChooseAttacker(game, S);
    } else {
        AttackTarget(game, blnDirect, S, bytResult);
    }
}

int RollDie(RandomNumbers& random) { return static_cast<int>(random.Next() * 5) + 1; }

}  // namespace qarn
