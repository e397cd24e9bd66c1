#include "shell/game_files.h"

#include <strings.h>

#include <algorithm>
#include <filesystem>

namespace qarn {
namespace {

namespace fs = std::filesystem;

bool EndsWith(const std::string& name, const std::string& end) {
    return name.size() >= end.size() &&
           strcasecmp(name.c_str() + name.size() - end.size(), end.c_str()) == 0;
}

bool ComesBefore(const std::string& name, const std::string& other) {
    const int order = strcasecmp(name.c_str(), other.c_str());
    return order != 0 ? order < 0 : name < other;
}

}  // namespace

std::vector<std::string> GameFilesIn(const std::string& folder) {
    std::vector<std::string> names;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code none;
        const std::string name = entry->path().filename().string();
        if (EndsWith(name, ".tgf") && entry->is_regular_file(none)) names.push_back(name);
    }
    std::sort(names.begin(), names.end(), ComesBefore);
    return names;
}

bool EndsLikeGameFile(const std::string& name) { return EndsWith(name, "tgf"); }

}  // namespace qarn
