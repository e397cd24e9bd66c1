#include "core/board_display.h"

namespace qarn {

void PlacePeople(Game& game, int i) {
    const PeopleRecord& people = game.record.People.at(static_cast<std::size_t>(i));
    if (!OnBoard(people)) return;
    game.controls.lbl.at(people.LocationX).at(people.LocationY).Caption += people.Code + "  ";
}

void ClearSquareCaption(Game& game, int X, int Y) {
    game.controls.lbl.at(static_cast<std::size_t>(X))
        .at(static_cast<std::size_t>(Y))
        .Caption.clear();
}

void RedrawSquare(Game& game, int X, int Y) {
    ClearSquareCaption(game, X, Y);
    const SquareList list = LocationOfPeople(game.record, X, Y);
    for (const std::uint8_t i : list.People()) PlacePeople(game, i);
}

}  // namespace qarn
