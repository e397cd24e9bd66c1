#pragma once

#include <ctime>
#include <string>

namespace qarn {

/// A time where the person is, for them to read: "28 May 2026, 20:26:40".
std::string ToldTime(std::time_t time);

}  // namespace qarn
