#pragma once

#include <array>
#include <string>
#include <string_view>

namespace qarn {

struct Ports;

/// Who plays each side while the computer does, by name, used from index 1.
using Opponents = std::array<std::string_view, 3>;

/// The opponents that are kept for the game in this file, in the person's data folder: game files
/// know no more than that the computer plays. Classic where none are kept, or cannot be read.
Opponents KeptOpponents(const Ports& ports, const std::string& strGamePath);

/// Keeps the opponents of the game in this file, for the hundred games that were given some last. A
/// failure is reported in a box. Without a data folder none are kept.
void KeepOpponents(const Ports& ports, const std::string& strGamePath, const Opponents& opponents);

}  // namespace qarn
