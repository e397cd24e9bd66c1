#include "core/position.h"

#include "core/game_record.h"

namespace qarn {

Position PositionOf(const GameRecord& record) {
    Position position;
    for (std::size_t i = 1; i <= peopleCount; ++i) position.People[i] = record.People[i];
    position.bytTerrain = record.bytTerrain;
    for (std::size_t T = 0; T < terrainKindCount; ++T) {
        position.TerrainKinds[T] = record.TerrainKinds[T];
    }
    position.bytTurn = record.bytTurn;
    position.blnFortressBurns = record.blnFortressBurns;
    position.house = record.house;
    return position;
}

PeopleSet PeopleOn(const Position& position, Square square) {
    PeopleSet people;
    for (std::uint8_t i = 1; i <= peopleCount; ++i) {
        const Group& one = position.People[i];
        if (one.LocationX == square.X && one.LocationY == square.Y) people.Add(i);
    }
    return people;
}

PeopleSet CharactersOf(const Position& position, PeopleSet people) {
    PeopleSet characters;
    for (const std::uint8_t i : people) {
        if (!IsTransport(position.People[i])) characters.Add(i);
    }
    return characters;
}

Strength StrengthOf(const Position& position, PeopleSet people) {
    Strength sums;
    for (const std::uint8_t i : people) AddStrength(sums, position.People[i]);
    return sums;
}

void Place(Position& position, PeopleSet people, Square square) {
    for (const std::uint8_t i : people) {
        position.People[i].LocationX = square.X;
        position.People[i].LocationY = square.Y;
    }
}

}  // namespace qarn
