#include "rules/questions/start.h"

#include "core/game_record.h"

namespace qarn {

StartRefusal AskStart(const Position& position, Square square) {
    const PeopleSet people = PeopleOn(position, square);
    if (people.Empty()) return StartRefusal::NobodyThere;
    if (CharactersOf(position, people).Empty()) return StartRefusal::OnlyTransports;
    const bool own = position.People[people.First()].Side == position.bytTurn;
    return own ? StartRefusal::None : StartRefusal::OpponentsPieces;
}

PeopleSet ListedOn(const Position& position, Square square) {
    PeopleSet listed;
    for (const std::uint8_t i : PeopleOn(position, square)) {
        if (listed.Count() < checkBoxCount) listed.Add(i);
    }
    return listed;
}

}  // namespace qarn
