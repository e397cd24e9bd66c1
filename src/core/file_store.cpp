#include "core/file_store.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <optional>

namespace qarn {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t largestFile = 1 << 20;

[[noreturn]] void Fail(const std::string& path) {
    throw std::system_error(errno, std::generic_category(), path);
}

class OpenFile {
public:
    OpenFile(const std::string& path, int flags, mode_t mode = 0)
        : path_(path), descriptor_(open(path.c_str(), flags | O_CLOEXEC, mode)) {
        if (descriptor_ < 0) Fail(path);
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile() {
        if (descriptor_ >= 0) close(descriptor_);
    }

    int Descriptor() const { return descriptor_; }

    struct stat Status() const {
        struct stat status {};
        if (fstat(descriptor_, &status) != 0) Fail(path_);
        return status;
    }

    std::string ReadAll(std::size_t size) const {
        std::string contents(size, '\0');
        std::size_t done = 0;
        while (done < size) {
            const ssize_t count = read(descriptor_, contents.data() + done, size - done);
            if (count < 0 && errno == EINTR) continue;
            if (count < 0) Fail(path_);
            if (count == 0) break;
            done += static_cast<std::size_t>(count);
        }
        contents.resize(done);
        return contents;
    }

    void WriteAll(std::string_view contents) const {
        while (!contents.empty()) {
            const ssize_t count = write(descriptor_, contents.data(), contents.size());
            if (count < 0 && errno == EINTR) continue;
            if (count < 0) Fail(path_);
            contents.remove_prefix(static_cast<std::size_t>(count));
        }
    }

    void Flush() const {
        if (fsync(descriptor_) != 0) Fail(path_);
    }

    // Some file systems report a failed write only here.
    void Close() {
        const int descriptor = descriptor_;
        descriptor_ = -1;
        if (close(descriptor) != 0) Fail(path_);
    }

private:
    std::string path_;
    int descriptor_;
};

// The file that a path of symbolic links leads to, whether it exists yet or not.
fs::path FollowLinks(fs::path path) {
    constexpr int mostLinks = 40;
    for (int link = 0; fs::is_symlink(path); ++link) {
        if (link == mostLinks) {
            throw std::system_error(ELOOP, std::generic_category(), path.string());
        }
        path = path.parent_path() / fs::read_symlink(path);
    }
    return path;
}

std::optional<struct stat> StatusOf(const fs::path& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) == 0) return status;
    if (errno != ENOENT) Fail(path.string());
    return std::nullopt;
}

// Renaming over a file needs no permission to write that file, so it is asked for here.
void RequireWritable(const fs::path& path) {
    if (access(path.c_str(), W_OK) != 0) Fail(path.string());
}

fs::path UnusedNameBeside(const fs::path& path) {
    for (int n = 0;; ++n) {
        const fs::path name = path.parent_path() /
                              (".qarn-save-" + std::to_string(getpid()) + "-" + std::to_string(n));
        if (!fs::exists(fs::symlink_status(name))) return name;
    }
}

void KeepOwnerAndPermissions(const OpenFile& file, const struct stat& old) {
    // Only root may give a file away: where it cannot be done the new file belongs to the writer.
    [[maybe_unused]] const int owned = fchown(file.Descriptor(), old.st_uid, old.st_gid);
    if (fchmod(file.Descriptor(), old.st_mode & 07777u) != 0) {
        throw std::system_error(errno, std::generic_category());
    }
}

void WriteNewFile(const fs::path& path, std::string_view contents,
                  const std::optional<struct stat>& old) {
    OpenFile file(path.string(), O_WRONLY | O_CREAT | O_EXCL, 0666);
    if (old) KeepOwnerAndPermissions(file, *old);
    file.WriteAll(contents);
    file.Flush();
    file.Close();
}

// Makes the rename itself survive a power cut. Some file systems do not offer it for folders.
void FlushFolder(const fs::path& folder) {
    const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) return;
    fsync(descriptor);
    close(descriptor);
}

}  // namespace

std::string ReadWholeFile(const std::string& path) {
    // Without O_NONBLOCK, opening a pipe would wait for its writer.
    const OpenFile file(path, O_RDONLY | O_NONBLOCK);
    const struct stat status = file.Status();
    if (S_ISDIR(status.st_mode)) throw std::system_error(EISDIR, std::generic_category(), path);
    if (!S_ISREG(status.st_mode)) throw std::system_error(EINVAL, std::generic_category(), path);
    const auto size = static_cast<std::size_t>(status.st_size);
    if (size > largestFile) throw std::system_error(EFBIG, std::generic_category(), path);
    return file.ReadAll(size);
}

void ReplaceFile(const std::string& path, std::string_view contents) {
    const fs::path target = FollowLinks(fs::absolute(path));
    const std::optional<struct stat> old = StatusOf(target);
    if (old) RequireWritable(target);

    const fs::path fresh = UnusedNameBeside(target);
    try {
        WriteNewFile(fresh, contents, old);
        if (rename(fresh.c_str(), target.c_str()) != 0) Fail(target.string());
    } catch (const std::system_error&) {
        unlink(fresh.c_str());
        throw;
    }
    FlushFolder(target.parent_path());
}

void DeleteFile(const std::string& path) {
    if (unlink(path.c_str()) != 0 && errno != ENOENT) Fail(path);
}

}  // namespace qarn
