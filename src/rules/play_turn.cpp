#include "rules/play_turn.h"

#include <algorithm>
#include <array>
#include <span>

#include "rules/questions/attack.h"
#include "rules/questions/casualties.h"
#include "rules/questions/odds.h"
#include "rules/questions/sides.h"
#include "rules/questions/start.h"
#include "rules/questions/step.h"

namespace qarn {
namespace {

constexpr Square offTheBoard;

void PassTurn(Position& position) { position.bytTurn = OtherSide(position.bytTurn); }

// One turn that is being played.
class PlayedTurn {
public:
    PlayedTurn(Position& position, const Plan& plan, Dice dice)
        : position_(position), plan_(plan), dice_(dice) {}

    TurnOutcome Play() {
        switch (plan_.kind) {
            case PlanKind::March:
                March();
                break;
            case PlanKind::Attack:
                AttackByCommand();
                break;
            case PlanKind::Pass:
                PassTurn(position_);
                break;
        }
        return outcome_;
    }

private:
    bool IsOver() const { return outcome_.winner != 0; }

    // ---- A march ----

    void March() {
        if (AskStart(position_, plan_.start) != StartRefusal::None) return;
        group_ = {plan_.people, plan_.start, StrengthOf(position_, plan_.people).Mobility};
        for (const Square square : plan_.path) {
            if (finished_ || group_.mobilityLeft == 0) break;
            Step(square);
        }
        if (IsOver() || turnPassed_) return;
        if (IsLoneBirdOnWater(position_, group_.people, group_.at)) {
            Place(position_, group_.people, plan_.start);
        } else {
            PassTurn(position_);
        }
    }

    void Step(Square to) {
        const StepAnswer step = AskStep(position_, group_, to);
        switch (step.result) {
            case StepResult::PlainStep:
                if (step.enters) Enter(to, step.cost);
                break;
            case StepResult::JoinedOwn:
                if (step.enters) Enter(to, step.cost);
                finished_ = true;
                break;
            case StepResult::DirectAttack:
                AttackDirectly(to, step);
                break;
            default:
                break;
        }
    }

    void Enter(Square to, int cost) {
        Place(position_, group_.people, to);
        group_.at = to;
        group_.mobilityLeft -= cost;
    }

    // The casualty is chosen among those who stood on the attacking square, but after the step.
    void AttackDirectly(Square to, const StepAnswer& step) {
        const AttackAnswer attack = AskAttack(position_, group_.at, to, true);
        if (attack.refusal != AttackRefusal::None) return;
        finished_ = true;
        const PeopleSet attackers = ListedOn(position_, group_.at);
        const bool losesCharacter = Fight(group_.at, to, attack, true);
        if (IsOver()) return;
        if (outcome_.attack->result == AttackResult::Won && step.enters) Enter(to, step.cost);
        if (losesCharacter) LoseCharacter(attackers);
    }

    // ---- An attack ----

    void AttackByCommand() {
        const AttackAnswer attack = AskAttack(position_, plan_.start, plan_.target, false);
        if (attack.refusal != AttackRefusal::None) return;
        const PeopleSet attackers = ListedOn(position_, plan_.start);
        const bool losesCharacter = Fight(plan_.start, plan_.target, attack, false);
        if (IsOver() || attack.burns) return;
        if (losesCharacter && LoseCharacter(attackers)) return;
        PassTurn(position_);
    }

    // Carries an attack out. Gives true when it costs the attackers a character.
    bool Fight(Square from, Square to, const AttackAnswer& attack, bool blnDirect) {
        const std::uint8_t defense = std::min(attack.attackUnits, attack.defenseUnits);
        outcome_.attack = Attacked{
            .side = position_.bytTurn,
            .from = from,
            .to = to,
            .direct = blnDirect,
            .attack = attack.attackUnits,
            .defense = defense,
            .threshold = static_cast<std::uint8_t>(ThresholdOf(attack.attackUnits, defense))};
        if (attack.burns) {
            position_.bytTerrain[to.X][to.Y] = attack.ruins;
            if (!attack.turnStays) PassTurn(position_);
            return false;
        }
        return Roll(to);
    }

    bool Roll(Square to) {
        Attacked& attack = *outcome_.attack;
        attack.roll = dice_.roll;
        attack.result = ResultOfRoll(dice_.roll, attack.threshold);
        if (attack.result == AttackResult::Won) {
            Lose(CharactersOf(position_, DefendersOf(position_, PeopleOn(position_, to))));
            if (IsOver()) return false;
            attack.secondRoll = dice_.secondRoll;
            return dice_.secondRoll == rollThatCosts;
        }
        return attack.result == AttackResult::Lost;
    }

    // ---- Losses ----

    // The loser of a character has no further say: the turn passes. Gives false when there is no
    // character to lose.
    bool LoseCharacter(PeopleSet attackers) {
        const PeopleSet characters = CharactersOf(position_, attackers);
        if (characters.Empty()) return false;
        Lose({characters.Contains(plan_.casualty) ? plan_.casualty : Weakest(attackers)});
        if (!IsOver()) PassTurn(position_);
        turnPassed_ = true;
        return true;
    }

    std::uint8_t Weakest(PeopleSet people) const {
        std::array<std::uint8_t, peopleCount> list{};
        std::size_t count = 0;
        for (const std::uint8_t i : people) list[count++] = i;
        const std::uint8_t place = ChooseDeadAnimal(position_, std::span(list).first(count));
        return list[place - 1u];
    }

    void Lose(PeopleSet people) {
        outcome_.lost = outcome_.lost | people;
        Place(position_, people, offTheBoard);
        const auto left = PeopleLeft(position_);
        if (left[1] == 0 || left[2] == 0) outcome_.winner = left[1] > 0 ? 1 : 2;
    }

    Position& position_;
    const Plan& plan_;
    Dice dice_;
    TurnOutcome outcome_;
    MovingGroup group_;
    bool finished_ = false;
    bool turnPassed_ = false;
};

}  // namespace

TurnOutcome PlayTurn(Position& position, const Plan& plan, Dice dice) {
    return PlayedTurn(position, plan, dice).Play();
}

}  // namespace qarn
