#include "core/board_display.h"

#include "core/game.h"

namespace qarn {
namespace {

template <typename Controls>
auto& LabelOf(Controls& controls, int X, int Y) {
    return controls.lbl.at(static_cast<std::size_t>(X)).at(static_cast<std::size_t>(Y));
}

}  // namespace

std::string CaptionOfSquare(const Game& game, int X, int Y) {
    std::string caption;
    for (const std::uint8_t i : LabelOf(game.controls, X, Y).Shown) {
        caption += game.record.People[i].Code;
        caption += "  ";
    }
    return caption;
}

void PlacePeople(Game& game, int i) {
    const PeopleRecord& people = game.record.People.at(static_cast<std::size_t>(i));
    if (!OnBoard(people)) return;
    LabelOf(game.controls, people.LocationX, people.LocationY)
        .Shown.Add(static_cast<std::uint8_t>(i));
}

void ClearSquareCaption(Game& game, int X, int Y) { LabelOf(game.controls, X, Y).Shown = {}; }

void RedrawSquare(Game& game, int X, int Y) {
    ClearSquareCaption(game, X, Y);
    const SquareList list = LocationOfPeople(game.record, X, Y);
    for (const std::uint8_t i : list.People()) PlacePeople(game, i);
}

}  // namespace qarn
