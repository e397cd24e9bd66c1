#pragma once

#include <sys/stat.h>

#include <string>
#include <string_view>

namespace qarn {

/// Throws std::system_error for what errno tells of the last call, with the path.
[[noreturn]] void FailOn(const std::string& path);

/// An open file, closed when it goes. What fails throws std::system_error with the reason; a call
/// that a signal has interrupted is made again.
class OpenFile {
public:
    /// `flags` are those of open(2).
    OpenFile(const std::string& path, int flags, mode_t mode = 0);
    OpenFile(OpenFile&& other) noexcept;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile();

    const std::string& Path() const { return path_; }
    int Descriptor() const { return descriptor_; }
    struct stat Status() const;

    /// Locks it for this program alone. Gives false when another one has it, or the file system
    /// knows no locks; `waits` for the other one first.
    bool Lock(bool waits) const;

    /// The first `size` bytes, or as many as there are.
    std::string ReadAll(std::size_t size) const;
    void WriteAll(std::string_view contents) const;

    /// Has what was written reach the disk.
    void Flush() const;

private:
    std::string path_;
    int descriptor_;
};

}  // namespace qarn
