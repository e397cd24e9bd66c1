#include "core/file_store.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <optional>
#include <utility>

namespace qarn {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t largestFile = 1 << 20;
constexpr std::string_view saveName = ".qarn-save-";

[[noreturn]] void Fail(const std::string& path) {
    throw std::system_error(errno, std::generic_category(), path);
}

class OpenFile {
public:
    OpenFile(const std::string& path, int flags, mode_t mode = 0)
        : path_(path), descriptor_(open(path.c_str(), flags | O_CLOEXEC, mode)) {
        if (descriptor_ < 0) Fail(path);
    }
    OpenFile(OpenFile&& other) noexcept
        : path_(std::move(other.path_)), descriptor_(std::exchange(other.descriptor_, -1)) {}
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile() {
        if (descriptor_ >= 0) close(descriptor_);
    }

    const std::string& Path() const { return path_; }
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

    // Some file systems report a failed write only to a close. A copy is closed: the lock stays.
    void Flush() const {
        if (fsync(descriptor_) != 0) Fail(path_);
        const int copy = dup(descriptor_);
        if (copy < 0 || close(copy) != 0) Fail(path_);
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

fs::path NameBeside(const fs::path& path, int n) {
    return path.parent_path() /
           (std::string(saveName) + std::to_string(getpid()) + "-" + std::to_string(n));
}

bool IsNameOfSave(const std::string& name) {
    return name.starts_with(saveName) &&
           name.find_first_not_of("0123456789-", saveName.size()) == std::string::npos;
}

// Makes a new file and locks it. Its lock shows that it has an owner, until that closes it or is
// killed. Where the file system knows no locks, no file is ever taken for abandoned.
OpenFile CreateBeside(const fs::path& path) {
    for (int n = 0;; ++n) {
        try {
            OpenFile file(NameBeside(path, n).string(), O_WRONLY | O_CREAT | O_EXCL, 0666);
            flock(file.Descriptor(), LOCK_EX);
            const bool removedBeforeItWasLocked = file.Status().st_nlink == 0;
            if (!removedBeforeItWasLocked) return file;
        } catch (const std::system_error& error) {
            if (error.code() != std::errc::file_exists) throw;
        }
    }
}

bool StandsAt(const std::string& path, const struct stat& file) {
    struct stat status {};
    return lstat(path.c_str(), &status) == 0 && status.st_dev == file.st_dev &&
           status.st_ino == file.st_ino;
}

void RemoveUnlessOwned(const std::string& path) {
    try {
        const OpenFile file(path, O_RDONLY | O_NOFOLLOW | O_NONBLOCK);
        const struct stat status = file.Status();
        const bool abandoned =
            S_ISREG(status.st_mode) && flock(file.Descriptor(), LOCK_EX | LOCK_NB) == 0;
        // The lock belongs to the file, and the name may be another file's by now.
        if (abandoned && StandsAt(path, status)) unlink(path.c_str());
    } catch (const std::system_error&) {
        // It has just got its final name, or belongs to somebody who keeps it closed.
    }
}

void KeepOwnerAndPermissions(const OpenFile& file, const struct stat& old) {
    // Only root may give a file away: where it cannot be done the new file belongs to the writer.
    [[maybe_unused]] const int owned = fchown(file.Descriptor(), old.st_uid, old.st_gid);
    if (fchmod(file.Descriptor(), old.st_mode & 07777u) != 0) {
        throw std::system_error(errno, std::generic_category());
    }
}

void WriteNewFile(const OpenFile& file, std::string_view contents,
                  const std::optional<struct stat>& old) {
    if (old) KeepOwnerAndPermissions(file, *old);
    file.WriteAll(contents);
    file.Flush();
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
    ReplaceFile(path, contents, [] { return true; });
}

bool ReplaceFile(const std::string& path, std::string_view contents,
                 const std::function<bool()>& mayReplace) {
    const fs::path target = FollowLinks(fs::absolute(path));
    const std::optional<struct stat> old = StatusOf(target);
    if (old) RequireWritable(target);
    RemoveAbandonedSaves(target.parent_path().string());

    const OpenFile fresh = CreateBeside(target);
    try {
        WriteNewFile(fresh, contents, old);
        const bool replaced = mayReplace();
        if (!replaced) {
            unlink(fresh.Path().c_str());
        } else if (rename(fresh.Path().c_str(), target.c_str()) != 0) {
            Fail(target.string());
        }
        FlushFolder(target.parent_path());
        return replaced;
    } catch (...) {
        unlink(fresh.Path().c_str());
        throw;
    }
}

void RemoveAbandonedSaves(const std::string& folder) {
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string path = entry->path().string();
        if (IsNameOfSave(entry->path().filename().string())) RemoveUnlessOwned(path);
    }
}

void DeleteFile(const std::string& path) {
    if (unlink(path.c_str()) != 0 && errno != ENOENT) Fail(path);
}

}  // namespace qarn
