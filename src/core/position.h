#pragma once

#include <array>
#include <cstdint>
#include <type_traits>

#include "core/group.h"
#include "core/house_rules.h"
#include "core/people_set.h"
#include "core/square.h"

namespace qarn {

struct GameRecord;

/// How a game stands between two turns, and all that the rules need to know to play on: a small
/// value that is copied freely. It is cut from a game's record and does not depend on it.
struct Position {
    std::array<Group, peopleCount + 1> People{};  ///< used from index 1
    std::array<std::array<std::uint8_t, rowCount + 1>, columnCount + 1> bytTerrain{};
    std::array<TerrainValues, terrainKindCount> TerrainKinds{};
    std::uint8_t bytTurn = 0;       ///< the side to move
    bool blnFortressBurns = false;  ///< the fortress is one that can be burned down
    HouseRules house;

    friend bool operator==(const Position&, const Position&) = default;
};
static_assert(std::is_trivially_copyable_v<Position> && sizeof(Position) < 640);

/// The position of the game in progress.
Position PositionOf(const GameRecord& record);

/// Everyone who stands on the square.
PeopleSet PeopleOn(const Position& position, Square square);

/// Those of a set who are not transport pieces.
PeopleSet CharactersOf(const Position& position, PeopleSet people);

/// The strengths of the people together. Throws EightBitOverflow when a sum passes 255.
Strength StrengthOf(const Position& position, PeopleSet people);

/// The terrain code of a square of the board.
inline std::uint8_t TerrainOf(const Position& position, Square square) {
    return position.bytTerrain[square.X][square.Y];
}

/// Puts the people onto the square; (0, 0) takes them off the board.
void Place(Position& position, PeopleSet people, Square square);

}  // namespace qarn
