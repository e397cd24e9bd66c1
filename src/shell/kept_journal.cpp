#include "shell/kept_journal.h"

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <system_error>
#include <vector>

#include "core/file_store.h"
#include "core/fingerprint.h"
#include "core/ports.h"
#include "shell/true_path.h"

namespace qarn {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t mostGames = 100;
constexpr std::size_t longestText = 1'000'000;  // of what ReadWholeFile reads

fs::path FolderOf(const Ports& ports) { return fs::path(ports.folders.userData) / "journals"; }

fs::path FileOf(const Ports& ports, const std::string& path) {
    return FolderOf(ports) / Fingerprint(path);
}

std::string_view NewerLines(std::string_view text) {
    if (text.size() <= longestText) return text;
    text.remove_prefix(text.size() - longestText);
    return text.substr(text.find('\n') + 1);
}

void RemoveOldest(const fs::path& folder) {
    std::error_code none;
    std::vector<std::pair<fs::file_time_type, fs::path>> files;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, none)) {
        files.emplace_back(entry.last_write_time(none), entry.path());
    }
    std::sort(files.rbegin(), files.rend());
    for (std::size_t i = mostGames; i < files.size(); ++i) fs::remove(files[i].second, none);
}

}  // namespace

KeptJournal ReadKeptJournal(const Ports& ports, const std::string& strGamePath) {
    if (ports.folders.userData.empty()) return {};
    const std::string path = TruePath(strGamePath);
    std::istringstream file;
    try {
        file.str(ReadWholeFile(FileOf(ports, path).string()));
    } catch (const std::system_error&) {
        return {};
    }
    std::string ofPath;
    KeptJournal journal;
    std::getline(file, ofPath);
    std::getline(file, journal.position);
    std::getline(file, journal.text, '\0');
    return ofPath == path ? journal : KeptJournal{};
}

void KeepJournalText(const Ports& ports, const std::string& strGamePath,
                     const KeptJournal& journal) {
    const std::string path = TruePath(strGamePath);
    if (ports.folders.userData.empty() || path.find('\n') != path.npos) return;
    fs::create_directories(FolderOf(ports));
    ReplaceFile(FileOf(ports, path).string(),
                path + "\n" + journal.position + "\n" + std::string(NewerLines(journal.text)));
    RemoveOldest(FolderOf(ports));
}

void ForgetJournal(const Ports& ports, const std::string& strGamePath) {
    if (ports.folders.userData.empty()) return;
    std::error_code none;
    fs::remove(FileOf(ports, TruePath(strGamePath)), none);
}

}  // namespace qarn
