#include "scenarios/sides_told.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "scenarios/setup.h"

namespace qarn {
namespace {

// What a side amounts to.
struct Muster {
    int groups = 0;
    int attack = 0;
    int defense = 0;
    int columns = 0;  // their sum
    int rows = 0;
    int west = columnCount;
    int east = 1;
    const RosterEntry* strongest = nullptr;
};

int StrengthOf(const RosterEntry& entry) { return entry.Attack + entry.Defense; }

Muster MusterOf(const ScenarioData& data, std::uint8_t side) {
    Muster muster;
    for (const RosterEntry& entry : data.Roster) {
        if (entry.Side != side) continue;
        ++muster.groups;
        muster.attack += entry.Attack;
        muster.defense += entry.Defense;
        muster.columns += entry.LocationX;
        muster.rows += entry.LocationY;
        muster.west = std::min<int>(muster.west, entry.LocationX);
        muster.east = std::max<int>(muster.east, entry.LocationX);
        if (muster.strongest == nullptr || StrengthOf(entry) > StrengthOf(*muster.strongest)) {
            muster.strongest = &entry;
        }
    }
    return muster;
}

// In which third of the board the middle of them lies: 0, 1 or 2.
int ThirdOf(int sum, int groups, int length) {
    return std::clamp((sum - groups / 2) * 3 / (groups * length), 0, 2);
}

std::string PlaceOf(const Muster& muster) {
    constexpr int scattered = 12;  // columns from the first to the last
    if (muster.east - muster.west >= scattered) return "all over the board";
    static constexpr std::array<std::array<std::string_view, 3>, 3> places{{
        {"in the north-west", "in the north", "in the north-east"},
        {"in the west", "in the middle", "in the east"},
        {"in the south-west", "in the south", "in the south-east"},
    }};
    const int row = ThirdOf(muster.rows, muster.groups, rowCount);
    const int column = ThirdOf(muster.columns, muster.groups, columnCount);
    return std::string(places[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)]);
}

}  // namespace

std::string ToldOfSide(int scenario, std::uint8_t side) {
    const Muster muster = MusterOf(DataOfScenario(scenario), side);
    return std::string(side == 1 ? "Goodbeasts (circles): " : "Badbeasts (squares): ") +
           std::to_string(muster.groups) + " groups, the strongest " +
           std::string(muster.strongest->Name) + "; " + std::to_string(muster.attack) +
           " attack, " + std::to_string(muster.defense) + " defense, " + PlaceOf(muster) + ".";
}

}  // namespace qarn
