#include "desktop/program_folders.h"

#include <glib.h>

#include <filesystem>

namespace qarn {

namespace fs = std::filesystem;

ProgramFolders FindProgramFolders() {
    std::error_code none;
    return {.program = fs::read_symlink("/proc/self/exe", none).parent_path().string(),
            .userData = (fs::path(g_get_user_data_dir()) / "qarn").string()};
}

}  // namespace qarn
