#include "ui/square_text.h"

#include <QStringList>

#include "core/game.h"
#include "ui/text.h"

namespace qarn {
namespace {

QString Place(const Game& game, int X, int Y) {
    const std::uint8_t code =
        game.record.bytTerrain.at(static_cast<std::size_t>(X)).at(static_cast<std::size_t>(Y));
    return QString("(%1, %2) %3")
        .arg(X)
        .arg(Y)
        .arg(ToQt(game.controls.lblTerrKey.at(code).Caption));
}

QString Strengths(const PeopleRecord& people) {
    return QString("mobility %1, attack %2, defense %3")
        .arg(people.Mobility)
        .arg(people.Attack)
        .arg(people.Defense);
}

}  // namespace

QString NameOfSquare(const Game& game, int X, int Y) {
    QStringList names;
    const SquareList list = LocationOfPeople(game.record, X, Y);
    for (const std::uint8_t i : list.People()) {
        names << ToQt(game.record.People[i].Name);
    }
    const QString place = Place(game, X, Y);
    return names.isEmpty() ? place : place + ": " + names.join(", ");
}

QString TipOfSquare(const Game& game, int X, int Y) {
    QString tip = Place(game, X, Y);
    const SquareList list = LocationOfPeople(game.record, X, Y);
    for (const std::uint8_t i : list.People()) {
        const PeopleRecord& people = game.record.People[i];
        tip += '\n' + ToQt(people.Name);
        if (!IsTransport(people)) tip += ": " + Strengths(people);
    }
    return tip;
}

}  // namespace qarn
