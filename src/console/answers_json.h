#pragma once

#include <nlohmann/json.hpp>

#include "console/answers.h"

namespace qarn {

/// The square as a pair of column and row.
nlohmann::ordered_json SquareJson(Square square);

/// The squares of a path, in order.
nlohmann::ordered_json PathJson(const Path& path);

/// The numbers of the people, in order.
nlohmann::ordered_json PeopleJson(PeopleSet people);

/// Adds the keys of the answers that were given, "reach", "odds" and "journal", and "hint", null
/// without one. Chances are numbers from 0 to 1.
void AddAnswers(nlohmann::ordered_json& object, const Answers& answers);

}  // namespace qarn
