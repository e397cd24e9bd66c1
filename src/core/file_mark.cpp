#include "core/file_mark.h"

#include <sys/stat.h>

namespace qarn {

std::optional<FileMark> MarkOf(const std::string& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) return std::nullopt;
    return FileMark{.device = status.st_dev,
                    .inode = status.st_ino,
                    .seconds = status.st_mtim.tv_sec,
                    .nanoseconds = status.st_mtim.tv_nsec,
                    .size = status.st_size};
}

}  // namespace qarn
