#pragma once

#include <nlohmann/json.hpp>

#include "core/happenings.h"

namespace qarn {

/// What happened, as a list of objects of which "what" names the kind. Squares are pairs of column
/// and row.
nlohmann::ordered_json HappeningsJson(const Happenings& happenings);

}  // namespace qarn
