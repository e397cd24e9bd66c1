#include "rules/questions/attack.h"

#include "rules/questions/sides.h"
#include "rules/questions/terrain_effect.h"

namespace qarn {
namespace {

AttackRefusal RefusalOfPlace(Square from, Square to) {
    const int distance = DistanceBetween(from, to);
    if (distance == 0) return AttackRefusal::OnItself;
    return distance > 1 ? AttackRefusal::NotAdjacent : AttackRefusal::None;
}

bool BurnsDown(const Position& position, std::uint8_t T, bool blnDirect) {
    return (T == Fortress && position.blnFortressBurns) || (T == Abbey && !blnDirect);
}

// By the house rule, where only the other side's groups stand nobody attacks, and where only one's
// own stand nobody is attacked.
bool AreOfWrongSide(const Position& position, PeopleSet people, PeopleSet taken) {
    return !CharactersOf(position, people).Empty() && CharactersOf(position, taken).Empty();
}

}  // namespace

AttackAnswer AskAttackers(const Position& position, Square from) {
    const PeopleSet people = PeopleOn(position, from);
    const PeopleSet actors = ActorsOf(position, people);
    const Strength strength = StrengthOf(position, actors);
    if (people.Empty()) return {.refusal = AttackRefusal::NobodyThere};
    if (AreOfWrongSide(position, people, actors)) return {.refusal = AttackRefusal::WrongSide};
    if (strength.Attack == 0) return {.refusal = AttackRefusal::Inanimate};
    return {.attackUnits = strength.Attack};
}

AttackAnswer AskTarget(const Position& position, Square from, std::uint8_t attackUnits, Square to,
                       bool blnDirect) {
    const PeopleSet people = PeopleOn(position, to);
    const PeopleSet defenders = DefendersOf(position, people);
    const Strength strength = StrengthOf(position, defenders);
    const AttackRefusal place = RefusalOfPlace(from, to);
    if (place != AttackRefusal::None) return {.refusal = place};
    const std::uint8_t T = TerrainOf(position, to);
    const bool landmark = T == Fortress || T == Abbey;
    if (people.Empty() && !landmark) return {.refusal = AttackRefusal::NobodyThere};
    if (AreOfWrongSide(position, people, defenders)) return {.refusal = AttackRefusal::WrongSide};
    if (strength.Attack == 0 && !landmark) return {.refusal = AttackRefusal::Inanimate};

    const TerrainEffect effect =
        TerrainModifiers(position, to, true, attackUnits, strength.Defense, blnDirect);
    AttackAnswer answer{.attackUnits = effect.bytAttackOut, .defenseUnits = effect.bytDefenseOut};
    if (!effect.blnAllowed) answer.refusal = AttackRefusal::Barred;
    answer.burns = answer.attackUnits > answer.defenseUnits && BurnsDown(position, T, blnDirect);
    answer.turnStays = blnDirect && position.house.oneTurnForABurning;
    answer.ruins = T == Fortress ? Sand : Plain;
    return answer;
}

AttackAnswer AskAttack(const Position& position, Square from, Square to, bool blnDirect) {
    const AttackAnswer attackers = AskAttackers(position, from);
    if (attackers.refusal != AttackRefusal::None) return attackers;
    return AskTarget(position, from, attackers.attackUnits, to, blnDirect);
}

}  // namespace qarn
