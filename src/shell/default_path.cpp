#include "shell/default_path.h"

#include <unistd.h>

#include <filesystem>

#include "core/game.h"
#include "shell/user_settings.h"

namespace qarn {
namespace {

namespace fs = std::filesystem;

const std::string filepathSection = "Filepath";

bool MayWriteTo(const std::string& folder) { return access(folder.c_str(), W_OK) == 0; }

std::string ProgramFolder(const ProgramFolders& folders) {
    if (!folders.isBuildTree && MayWriteTo(folders.program)) return folders.program;
    std::error_code toldWhenAGameIsWritten;
    fs::create_directories(folders.userData, toldWhenAGameIsWritten);
    return folders.userData;
}

// A folder that is not there is no error: whatever the look finds, the value counts.
bool CanLookFor(const std::string& path) {
    std::error_code error;
    return fs::status(path, error).type() != fs::file_type::none;
}

}  // namespace

std::string DefaultPath(const Ports& ports) {
    const std::string value = ReadSetting(ports, filepathSection, "");
    return value.empty() || !CanLookFor(value) ? ProgramFolder(ports.folders) : value;
}

void mnuDefaultFilepath_Click(Game& game) {
    const std::string answer = game.ports.dialogs.InputPrompt(
        "Enter the default filepath for QARN to use.", "Default Filepath", DefaultPath(game.ports));
    if (!answer.empty()) StoreSetting(game.ports, filepathSection, answer);
}

}  // namespace qarn
