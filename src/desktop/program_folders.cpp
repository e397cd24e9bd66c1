#include "desktop/program_folders.h"

#include <glib.h>

#include <filesystem>

namespace qarn {

namespace fs = std::filesystem;

bool IsBuildTree(const std::string& folder) {
    std::error_code none;
    return fs::exists(fs::path(folder) / "CMakeCache.txt", none);
}

ProgramFolders FindProgramFolders() {
    std::error_code none;
    const std::string program = fs::read_symlink("/proc/self/exe", none).parent_path().string();
    return {.program = program,
            .userData = (fs::path(g_get_user_data_dir()) / "qarn").string(),
            .isBuildTree = IsBuildTree(program),
            .userState = (fs::path(g_get_user_state_dir()) / "qarn").string()};
}

}  // namespace qarn
