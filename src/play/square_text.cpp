#include "play/square_text.h"

#include <vector>

#include "core/enumerate.h"
#include "core/game.h"
#include "play/odds_ahead.h"
#include "play/step_told.h"

namespace qarn {
namespace {

using Names = std::vector<std::string_view>;

std::string Place(const Game& game, int X, int Y) {
    const std::uint8_t code =
        game.record.bytTerrain.at(static_cast<std::size_t>(X)).at(static_cast<std::size_t>(Y));
    return "(" + std::to_string(X) + ", " + std::to_string(Y) + ") " +
           std::string(game.controls.lblTerrKey.at(code).Caption);
}

std::string Strengths(const PeopleRecord& people) {
    return "mobility " + std::to_string(people.Mobility) + ", attack " +
           std::to_string(people.Attack) + ", defense " + std::to_string(people.Defense);
}

std::string WithStrengths(const PeopleRecord& people) {
    return std::string(people.Name) + ", " + std::to_string(people.Mobility) + " mobility, " +
           std::to_string(people.Attack) + " attack, " + std::to_string(people.Defense) +
           " defense";
}

Names TransportsOf(const GameRecord& record, const SquareList& list) {
    Names names;
    for (const std::uint8_t i : list.People()) {
        if (IsTransport(record.People[i])) names.push_back(record.People[i].Name);
    }
    return names;
}

// Who stands there by their owners, for whom `newOwner` leads up and `sameOwner` goes on.
std::string Owned(const GameRecord& record, const SquareList& list, const char* newOwner,
                  bool ownerAgain, const char* sameOwner) {
    std::string text;
    std::uint8_t owner = 0;
    for (const std::uint8_t i : list.People()) {
        const PeopleRecord& people = record.People[i];
        if (IsTransport(people)) continue;
        const bool same = people.Side == owner;
        owner = people.Side;
        text += same ? sameOwner : newOwner;
        if (!same || ownerAgain) text += NameOfSide(record, owner) + ": ";
        text += WithStrengths(people);
    }
    const Names transports = TransportsOf(record, list);
    return transports.empty() ? text : text + newOwner + Enumerate(transports);
}

std::string OnALine(const std::string& text) { return text.empty() ? text : '\n' + text; }

Square SquareAt(int X, int Y) {
    return {static_cast<std::uint8_t>(X), static_cast<std::uint8_t>(Y)};
}

std::string NamesOn(const GameRecord& record, const SquareList& list) {
    std::string text;
    for (const std::string_view name : GetPeopleNames(record, list.People())) {
        text += (text.empty() ? ": " : ", ") + std::string(name);
    }
    return text;
}

std::string LinesOf(const GameRecord& record, const SquareList& list) {
    std::string text;
    for (const std::uint8_t i : list.People()) {
        const PeopleRecord& people = record.People[i];
        text += '\n' + std::string(people.Name);
        if (!IsTransport(people)) text += ": " + Strengths(people);
    }
    return text;
}

}  // namespace

std::string NameOfSide(const GameRecord& record, std::uint8_t side) {
    const std::string& name = record.strPlayerName.at(side);
    if (!name.empty()) return name;
    return side == 1 ? "Goodbeasts" : "Badbeasts";
}

std::string NameOfSquare(const Game& game, int X, int Y) {
    const SquareList list = LocationOfPeople(game.record, X, Y);
    const std::string step = game.view.reach ? StepTold(game.record, SquareAt(X, Y)) : "";
    std::string name = Place(game, X, Y);
    name += game.view.sides ? Owned(game.record, list, ". ", false, "; ") + "."
                            : NamesOn(game.record, list);
    if (step.empty()) return name;
    return name + (game.view.sides ? " " : ". ") + step;
}

std::string TipOfSquare(const Game& game, int X, int Y) {
    const SquareList list = LocationOfPeople(game.record, X, Y);
    return Place(game, X, Y) +
           (game.view.sides ? Owned(game.record, list, "\n", true, "\n")
                            : LinesOf(game.record, list)) +
           (game.view.reach ? OnALine(StepTold(game.record, SquareAt(X, Y))) : "") +
           OnALine(OddsAheadTold(game, SquareAt(X, Y)));
}

}  // namespace qarn
