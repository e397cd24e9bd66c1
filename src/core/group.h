#pragma once

#include <array>
#include <cstdint>

#include "core/square.h"

namespace qarn {

inline constexpr int peopleCount = 24;
inline constexpr int terrainKindCount = 9;

/// Terrain codes, the index into TerrainKinds.
enum Terrain : std::uint8_t {
    Plain,
    Mountain,
    Ocean,
    Stream,
    Sand,
    Swamp,
    Forest,
    Fortress,
    Abbey,
};

/// What the rules know a group by, besides its side and strengths.
enum class GroupKind : std::uint8_t {
    Ordinary,
    LoneBird,     ///< the code "J": flies over water when it is alone on its square
    LeadingBird,  ///< the code "SK": flies over water and leads others across
    Boat,         ///< carries those who go with it over water
    Cart,
};

/// One group as the rules see it: where it stands and what it can do.
struct Group {
    std::uint8_t LocationX = 0;  ///< 1 to 18; 0 = no longer on the board
    std::uint8_t LocationY = 0;
    std::uint8_t Side = 0;  ///< 1 or 2; 0 for a transport piece
    std::uint8_t Mobility = 0;
    std::uint8_t Attack = 0;
    std::uint8_t Defense = 0;
    std::int16_t Ability1 = 0;  ///< three digits, read one by one; 0 = none
    std::int16_t Ability2 = 0;
    GroupKind Kind = GroupKind::Ordinary;

    friend bool operator==(const Group&, const Group&) = default;
};

/// What one kind of terrain costs and gives.
struct TerrainValues {
    std::uint8_t Mobility = 0;  ///< mobility units of a step onto it
    std::uint8_t Attack = 0;
    std::uint8_t Defense = 0;     ///< defense units it adds to a group defending on it
    bool DirectAttack = false;    ///< may be attacked by stepping into it
    bool IndirectAttack = false;  ///< may be attacked with the Attack command (shown only)
    bool NeedsBoat = false;

    friend bool operator==(const TerrainValues&, const TerrainValues&) = default;
};

/// Mobility, attack and defense added up.
struct Strength {
    std::uint8_t Mobility = 0;
    std::uint8_t Attack = 0;
    std::uint8_t Defense = 0;
};

/// Where the group stands; (0, 0) = no longer on the board.
constexpr Square SquareOf(const Group& people) { return {people.LocationX, people.LocationY}; }

/// True when the group stands on the board.
constexpr bool OnBoard(const Group& people) { return people.LocationX != 0; }

constexpr bool IsTransport(const Group& people) { return people.Side == 0; }

/// True for the groups that fly over water.
constexpr bool IsBird(const Group& people) {
    return people.Kind == GroupKind::LoneBird || people.Kind == GroupKind::LeadingBird;
}

/// True for ocean and stream.
constexpr bool IsWater(std::uint8_t code) { return code == Ocean || code == Stream; }

/// The other side: 2 for 1, and 1 for anything else.
constexpr std::uint8_t OtherSide(std::uint8_t side) { return side == 1 ? 2 : 1; }

/// Adds the strengths of one group to `totals`. Throws EightBitOverflow, and leaves `totals` as it
/// was, when a sum passes 255.
void AddStrength(Strength& totals, const Group& people);

}  // namespace qarn
