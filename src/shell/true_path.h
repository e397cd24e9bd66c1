#pragma once

#include <string>

namespace qarn {

/// The one path of a file, by whatever links it is reached: what the program keeps for a game in
/// the person's data folder is found by it.
std::string TruePath(const std::string& path);

}  // namespace qarn
