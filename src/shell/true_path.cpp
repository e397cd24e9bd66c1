#include "shell/true_path.h"

#include <filesystem>
#include <system_error>

namespace qarn {

std::string TruePath(const std::string& path) {
    std::error_code error;
    const std::filesystem::path canonical = std::filesystem::weakly_canonical(path, error);
    return error ? path : canonical.string();
}

}  // namespace qarn
