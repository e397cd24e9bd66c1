#pragma once

#include <string>
#include <vector>

namespace qarn {

/// A game file of a folder.
struct GameFile {
    std::string Name;  ///< without folder, in the file system's bytes
    std::string Told;  ///< its scenario, its players, whose turn it is and when it was saved
};

/// The game files in a folder, recognised by their ending, the one saved last first. A folder that
/// cannot be read has none.
std::vector<GameFile> GameFilesIn(const std::string& folder);

/// True when the last three characters of the name, in any case, are those of a game file's ending.
bool EndsLikeGameFile(const std::string& name);

}  // namespace qarn
