#include "console/answers.h"

#include "console/words.h"
#include "core/game_record.h"
#include "rules/questions/attack.h"
#include "rules/questions/start.h"
#include "rules/questions/step.h"

namespace qarn {
namespace {

// The position as it is when the side of those on the square is to move: that of the first of them,
// unless the side to move can set out from there.
Position PositionInTurnOf(const GameRecord& record, Square square) {
    Position position = PositionOf(record);
    if (AskStart(position, square) == StartRefusal::None) return position;
    const PeopleSet people = PeopleOn(position, square);
    if (!people.Empty()) position.bytTurn = position.People[people.First()].Side;
    return position;
}

MovingGroup WholeStack(const Position& position, Square square) {
    const PeopleSet people = ListedOn(position, square);
    return {people, square, StrengthOf(position, people).Mobility};
}

AttackOdds OddsOfUnits(std::uint8_t attack, std::uint8_t defense, bool burns) {
    const Odds certain{.win = dieSides};
    return {.attack = attack,
            .defense = defense,
            .odds = burns ? certain : OddsOf(attack, defense),
            .burns = burns};
}

std::optional<AttackOdds> OddsOfAttack(const AttackAnswer& attack) {
    if (attack.refusal != AttackRefusal::None) return std::nullopt;
    return OddsOfUnits(attack.attackUnits, attack.defenseUnits, attack.burns);
}

bool CanAttackDirectly(const Position& position, Square from, Square to) {
    return AskStart(position, from) == StartRefusal::None &&
           AskStep(position, WholeStack(position, from), to).result == StepResult::DirectAttack;
}

}  // namespace

AttackOdds OddsOfHint(const Attacked& attack) {
    return OddsOfUnits(attack.attack, attack.defense, !attack.roll);
}

std::vector<ReachedSquare> ReachOfGroupInMove(const GameRecord& record) {
    if (!record.blnMoveUnderWay || record.blnChoosing) throw Refusal("No group is in move.");
    if (record.blnMoveFinished) return {};
    const Position position = PositionOf(record);
    const PeopleSet people = PeopleSet::Of(Selection(record));
    const int mobilityLeft =
        record.blnMobilitySet ? record.bytMobilityLeft : StrengthOf(position, people).Mobility;
    return ReachOf(position, {people, {record.bytGroupX, record.bytGroupY}, mobilityLeft});
}

std::vector<ReachedSquare> ReachOfStack(const GameRecord& record, Square square) {
    const Position position = PositionInTurnOf(record, square);
    switch (AskStart(position, square)) {
        case StartRefusal::NobodyThere:
            throw Refusal("There is no one on that square.");
        case StartRefusal::OnlyTransports:
            throw Refusal("The cart and/or boat can not go on its own.");
        default:
            return ReachOf(position, WholeStack(position, square));
    }
}

OddsAnswer OddsOfStack(const GameRecord& record, Square from, Square to) {
    const Position position = PositionInTurnOf(record, from);
    OddsAnswer answer;
    answer.command = OddsOfAttack(AskAttack(position, from, to, false));
    if (CanAttackDirectly(position, from, to)) {
        answer.direct = OddsOfAttack(AskAttack(position, from, to, true));
    }
    return answer;
}

}  // namespace qarn
