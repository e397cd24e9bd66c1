#pragma once

#include <string>

namespace qarn {

// Tables of the rules, made by asking the rules themselves.

/// The odds of an attack by the difference between attack and defense units.
std::string OddsTable();

/// What every kind of terrain costs and gives, in the terrain's colours.
std::string TerrainTable();

/// What steps cost to ordinary groups, to climbers and to fliers.
std::string SpecialMoverTable();

}  // namespace qarn
