#pragma once

#include <string>
#include <vector>

namespace qarn {

/// The names of the game files in a folder, recognised by their ending, sorted without regard to
/// case. A folder that cannot be read has none.
std::vector<std::string> GameFilesIn(const std::string& folder);

/// True when the last three characters of the name, in any case, are those of a game file's ending.
bool EndsLikeGameFile(const std::string& name);

}  // namespace qarn
