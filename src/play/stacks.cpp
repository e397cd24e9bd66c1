#include "play/stacks.h"

#include "core/game_record.h"
#include "rules/questions/start.h"

namespace qarn {

std::optional<MovingGroup> GroupInMove(const GameRecord& record) {
    const bool steps = record.blnMoveUnderWay && !record.blnChoosing && !record.blnMoveFinished;
    if (!steps || record.blnCasualtyPending) return std::nullopt;
    const PeopleSet people = PeopleSet::Of(Selection(record));
    const int mobilityLeft = record.blnMobilitySet
                                 ? record.bytMobilityLeft
                                 : StrengthOf(PositionOf(record), people).Mobility;
    return MovingGroup{people, {record.bytGroupX, record.bytGroupY}, mobilityLeft};
}

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

}  // namespace qarn
