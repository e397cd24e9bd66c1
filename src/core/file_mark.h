#pragma once

#include <sys/types.h>

#include <cstdint>
#include <optional>
#include <string>

namespace qarn {

/// What a file is known by: another one in its place, or other contents, have another mark.
struct FileMark {
    dev_t device;
    ino_t inode;
    std::int64_t seconds, nanoseconds;  ///< when it was changed
    off_t size;

    friend bool operator==(const FileMark&, const FileMark&) = default;
};

/// The mark of the file that a path leads to; none when there is none, or it cannot be looked at.
std::optional<FileMark> MarkOf(const std::string& path);

/// A file as it was seen last.
struct SeenFile {
    std::string path;
    std::optional<FileMark> mark;
};

}  // namespace qarn
