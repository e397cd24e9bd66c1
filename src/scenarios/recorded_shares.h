#pragma once

#include <map>
#include <string_view>

namespace qarn {

/// The shares of side 1 by the codes of the scenarios, from matches/captain-captain.json.
extern const std::map<std::string_view, double> recordedShares;

}  // namespace qarn
