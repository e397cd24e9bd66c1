#include "rules/questions/start.h"

#include "core/game_record.h"
#include "rules/questions/sides.h"
#include "rules/questions/step.h"

namespace qarn {

StartRefusal AskStart(const Position& position, Square square) {
    const PeopleSet people = PeopleOn(position, square);
    if (people.Empty()) return StartRefusal::NobodyThere;
    if (CharactersOf(position, people).Empty()) return StartRefusal::OnlyTransports;
    const PeopleSet actors = ActorsOf(position, people);
    const bool own = !actors.Empty() && position.People[actors.First()].Side == position.bytTurn;
    return own ? StartRefusal::None : StartRefusal::OpponentsPieces;
}

PeopleSet ListedOn(const Position& position, Square square) {
    PeopleSet listed;
    for (const std::uint8_t i : ActorsOf(position, PeopleOn(position, square))) {
        if (listed.Count() < checkBoxCount) listed.Add(i);
    }
    return listed;
}

Square SquareToPassFrom(const Position& position) {
    Square square;
    for (const Group& group : position.People) {
        if (!OnBoard(group) || group.Side != position.bytTurn) continue;
        square = {group.LocationX, group.LocationY};
        const bool starts = AskStart(position, square) == StartRefusal::None;
        if (starts && !IsLoneBirdOnWater(position, ListedOn(position, square), square)) break;
    }
    return square;
}

}  // namespace qarn
