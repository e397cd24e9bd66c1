#include "shell/kept_recovery.h"

#include <fcntl.h>

#include <exception>
#include <filesystem>
#include <system_error>

#include "core/file_store.h"
#include "core/fingerprint.h"
#include "core/game_file.h"
#include "core/open_file.h"
#include "core/ports.h"
#include "shell/true_path.h"

namespace qarn {
namespace {

namespace fs = std::filesystem;

fs::path FileOf(const Ports& ports, const std::string& strGamePath) {
    return fs::path(ports.folders.userState) / "recovery" /
           (Fingerprint(TruePath(strGamePath)) + ".tgf");
}

// Elsewhere than what is kept, and left when the game is closed: another program may wait for it.
fs::path LockOf(const Ports& ports, const std::string& strGamePath) {
    return fs::path(ports.folders.userState) / "played" / Fingerprint(TruePath(strGamePath));
}

fs::path Aside(fs::path file) { return file.replace_extension(".declined.tgf"); }

// The scenario and the players of a game file; nothing of a damaged one.
std::string GameIn(const std::string& file) {
    try {
        GameFileReader reader(file);
        std::string game(FirstItem(reader.ReadLine("scenario")));
        for (int side = 1; side <= 2; ++side) {
            game += '\n' + ParsePlayerLine(reader.ReadLine("player")).strPlayerName;
        }
        return game;
    } catch (const GameFileError&) {
        return "";
    }
}

// Another game may have been begun in the file meanwhile.
bool IsAnotherGame(const std::string& file, const std::string& strGamePath) {
    const std::string kept = GameIn(file);
    const std::string saved = GameIn(strGamePath);
    return !kept.empty() && !saved.empty() && kept != saved;
}

bool IsToRecover(const std::string& file, const std::string& strGamePath) {
    try {
        return ReadWholeFile(file) != ReadWholeFile(strGamePath) &&
               !IsAnotherGame(file, strGamePath);
    } catch (const std::system_error&) {
        return false;
    }
}

}  // namespace

std::shared_ptr<const OpenFile> TakeRecovery(const Ports& ports, const std::string& strGamePath) {
    if (ports.folders.userState.empty()) return nullptr;
    constexpr int flags = O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK;
    try {
        const fs::path path = LockOf(ports, strGamePath);
        fs::create_directories(path.parent_path());
        auto lock = std::make_shared<const OpenFile>(path.string(), flags, S_IRUSR | S_IWUSR);
        return lock->Lock(false) ? lock : nullptr;
    } catch (const std::exception&) {
        return nullptr;
    }
}

void KeepRecovery(const Ports& ports, const std::string& strGamePath, const std::string& text) {
    if (ports.folders.userState.empty()) return;
    const fs::path file = FileOf(ports, strGamePath);
    try {
        fs::create_directories(file.parent_path());
        ReplaceFile(file.string(), text);
    } catch (const std::system_error&) {
        // The game goes on all the same, and says so itself when it cannot be saved.
    }
}

std::optional<std::string> FindRecovery(const Ports& ports, const std::string& strGamePath) {
    if (ports.folders.userState.empty()) return std::nullopt;
    const fs::path file = FileOf(ports, strGamePath);
    for (const fs::path& kept : {file, Aside(file)}) {
        if (IsToRecover(kept.string(), strGamePath)) return kept.string();
    }
    return std::nullopt;
}

void SetRecoveryAside(const Ports& ports, const std::string& strGamePath) {
    if (ports.folders.userState.empty()) return;
    const fs::path file = FileOf(ports, strGamePath);
    std::error_code noneToBeSetAside;
    fs::rename(file, Aside(file), noneToBeSetAside);
}

void ForgetRecovery(const Ports& ports, const std::string& strGamePath) {
    if (ports.folders.userState.empty()) return;
    const fs::path file = FileOf(ports, strGamePath);
    std::error_code noneThere;
    fs::remove(file, noneThere);
    fs::remove(Aside(file), noneThere);
}

}  // namespace qarn
