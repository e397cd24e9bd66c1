#include "core/open_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>
#include <utility>

namespace qarn {
namespace {

// A signal may come again and again, but a call that never gets through has failed.
template <typename Call>
auto Uninterrupted(const Call& call) {
    constexpr int mostTries = 100;
    auto result = call();
    for (int tries = 1; result < 0 && errno == EINTR && tries < mostTries; ++tries) result = call();
    return result;
}

}  // namespace

void FailOn(const std::string& path) {
    throw std::system_error(errno, std::generic_category(), path);
}

OpenFile::OpenFile(const std::string& path, int flags, mode_t mode)
    : path_(path),
      descriptor_(Uninterrupted([&] { return open(path.c_str(), flags | O_CLOEXEC, mode); })) {
    if (descriptor_ < 0) FailOn(path);
}

OpenFile::OpenFile(OpenFile&& other) noexcept
    : path_(std::move(other.path_)), descriptor_(std::exchange(other.descriptor_, -1)) {}

OpenFile::~OpenFile() {
    if (descriptor_ >= 0) close(descriptor_);
}

struct stat OpenFile::Status() const {
    struct stat status {};
    if (fstat(descriptor_, &status) != 0) FailOn(path_);
    return status;
}

bool OpenFile::Lock(bool waits) const {
    const int how = waits ? LOCK_EX : LOCK_EX | LOCK_NB;
    return Uninterrupted([&] { return flock(descriptor_, how); }) == 0;
}

std::string OpenFile::ReadAll(std::size_t size) const {
    std::string contents(size, '\0');
    std::size_t done = 0;
    while (done < size) {
        const ssize_t count =
            Uninterrupted([&] { return read(descriptor_, contents.data() + done, size - done); });
        if (count < 0) FailOn(path_);
        if (count == 0) break;
        done += static_cast<std::size_t>(count);
    }
    contents.resize(done);
    return contents;
}

void OpenFile::WriteAll(std::string_view contents) const {
    while (!contents.empty()) {
        const ssize_t count =
            Uninterrupted([&] { return write(descriptor_, contents.data(), contents.size()); });
        if (count == 0) errno = EIO;  // it would be so for ever
        if (count <= 0) FailOn(path_);
        contents.remove_prefix(static_cast<std::size_t>(count));
    }
}

// Some file systems report a failed write only to a close. A copy is closed: the lock stays.
void OpenFile::Flush() const {
    if (Uninterrupted([&] { return fsync(descriptor_); }) != 0) FailOn(path_);
    const int copy = dup(descriptor_);
    if (copy < 0) FailOn(path_);
    const bool closed = close(copy) == 0 || errno == EINTR;  // which closes it all the same
    if (!closed) FailOn(path_);
}

}  // namespace qarn
