#include "core/file_store.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <random>

#include "core/open_file.h"

namespace qarn {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t largestFile = 1 << 20;
constexpr std::string_view saveName = ".qarn-save-";

// Its message is what people read; its values are those of errno.
class NoOrdinaryFile : public std::error_category {
public:
    const char* name() const noexcept override { return "file"; }
    std::string message(int) const override { return "It is not an ordinary file"; }
};

// A device or a pipe could take what is written, or never end.
void RequireOrdinary(const struct stat& file, const std::string& path) {
    static const NoOrdinaryFile noOrdinaryFile;
    if (S_ISDIR(file.st_mode)) throw std::system_error(EISDIR, std::generic_category(), path);
    if (!S_ISREG(file.st_mode)) throw std::system_error(EINVAL, noOrdinaryFile, path);
}

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
    if (errno != ENOENT) FailOn(path.string());
    return std::nullopt;
}

// Renaming over a file needs no permission to write that file, so it is asked for here.
void RequireWritable(const fs::path& path) {
    if (access(path.c_str(), W_OK) != 0) FailOn(path.string());
}

// Nobody can tell it beforehand, so nobody can have put anything in its place.
std::string RandomName() {
    std::random_device random;
    char digits[17];
    std::snprintf(digits, sizeof digits, "%08x%08x", random(), random());
    return std::string(saveName) + digits;
}

bool IsNameOfSave(const std::string& name) {
    return name.size() == saveName.size() + 16 && name.starts_with(saveName) &&
           name.find_first_not_of("0123456789abcdef", saveName.size()) == std::string::npos;
}

// Makes a new file and locks it. Its lock shows that it has an owner, until that closes it or is
// killed. Where the file system knows no locks, no file is ever taken for abandoned.
OpenFile CreateBeside(const fs::path& path) {
    constexpr int mostTries = 100;
    for (int tries = 1;; ++tries) {
        const fs::path name = path.parent_path() / RandomName();
        try {
            OpenFile file(name.string(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, 0666);
            file.Lock(true);
            const bool removedBeforeItWasLocked = file.Status().st_nlink == 0;
            if (!removedBeforeItWasLocked) return file;
        } catch (const std::system_error& error) {
            if (error.code() != std::errc::file_exists || tries == mostTries) throw;
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
        const bool abandoned = S_ISREG(status.st_mode) && file.Lock(false);
        // The lock belongs to the file, and the name may be another file's by now.
        if (abandoned && StandsAt(path, status)) unlink(path.c_str());
    } catch (const std::system_error&) {
        // It has just got its final name, or belongs to somebody who keeps it closed.
    }
}

void KeepOwnerAndPermissions(const OpenFile& file, const struct stat& old) {
    // Only root may give a file away: where it cannot be done the new file belongs to the writer.
    [[maybe_unused]] const int owned = fchown(file.Descriptor(), old.st_uid, old.st_gid);
    if (fchmod(file.Descriptor(), old.st_mode & 07777u) == 0) return;
    const bool unknownThere = errno == EPERM || errno == EOPNOTSUPP || errno == ENOSYS;
    if (!unknownThere) FailOn(file.Path());
}

void WriteNewFile(const OpenFile& file, std::string_view contents,
                  const std::optional<struct stat>& old) {
    if (old) KeepOwnerAndPermissions(file, *old);
    file.WriteAll(contents);
    file.Flush();
}

// Makes the rename itself survive a power cut. Some file systems do not offer it for folders, and
// some folders can be written but not read.
void FlushFolder(const fs::path& folder) {
    try {
        OpenFile(folder.string(), O_RDONLY | O_DIRECTORY).Flush();
    } catch (const std::system_error& error) {
        const int reason = error.code().value();
        if (reason != EACCES && reason != EINVAL && reason != EOPNOTSUPP && reason != ENOSYS) throw;
    }
}

}  // namespace

std::string ReadWholeFile(const std::string& path) {
    // Without O_NONBLOCK, opening a pipe would wait for its writer.
    const OpenFile file(path, O_RDONLY | O_NONBLOCK);
    const struct stat status = file.Status();
    RequireOrdinary(status, path);
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
    if (old) {
        RequireOrdinary(*old, target.string());
        RequireWritable(target);
    }
    RemoveAbandonedSaves(target.parent_path().string());

    const OpenFile fresh = CreateBeside(target);
    const struct stat created = fresh.Status();
    const auto removeCreated = [&] {
        if (StandsAt(fresh.Path(), created)) unlink(fresh.Path().c_str());
    };
    try {
        WriteNewFile(fresh, contents, old);
        if (!mayReplace()) {
            removeCreated();
            return false;
        }
        if (rename(fresh.Path().c_str(), target.c_str()) != 0) FailOn(target.string());
        FlushFolder(target.parent_path());
        return true;
    } catch (...) {
        removeCreated();
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
    if (unlink(path.c_str()) != 0 && errno != ENOENT) FailOn(path);
}

}  // namespace qarn
