#include "shell/game_files.h"

#include <strings.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <ctime>
#include <filesystem>

#include "core/code_page.h"
#include "core/game_file.h"
#include "scenarios/catalogue.h"

namespace qarn {
namespace {

namespace fs = std::filesystem;

bool EndsWith(const std::string& name, const std::string& end) {
    return name.size() >= end.size() &&
           strcasecmp(name.c_str() + name.size() - end.size(), end.c_str()) == 0;
}

struct Found {
    std::string name;
    timespec saved{};
};

bool ComesBefore(const Found& one, const Found& other) {
    if (one.saved.tv_sec != other.saved.tv_sec) return one.saved.tv_sec > other.saved.tv_sec;
    if (one.saved.tv_nsec != other.saved.tv_nsec) return one.saved.tv_nsec > other.saved.tv_nsec;
    const int order = strcasecmp(one.name.c_str(), other.name.c_str());
    return order != 0 ? order < 0 : one.name < other.name;
}

timespec SavedAt(const std::string& path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 ? status.st_mtim : timespec{};
}

std::string PlayerOf(const std::string& line) {
    return HasComputerFlag(line) ? ParsePlayerLine(line).strPlayerName : DecodeCodePage(line);
}

// Of a file whose text can be read so far.
std::string ToldOfGame(const std::string& path) {
    GameFileReader file(path);
    const std::string line = file.ReadLine("the scenario");
    const int scenario = ScenarioNumber(std::string(FirstItem(line)));
    const std::string first = PlayerOf(file.ReadLine("the player of side 1"));
    const std::string second = PlayerOf(file.ReadLine("the player of side 2"));
    const int turn = file.ReadNumber("the side to move", 0, 2);
    std::string told = first + " and " + second + ".";
    if (scenario != 0) told = std::string(NamesOfScenario(scenario).ListTitle) + ": " + told;
    if (turn == 0) return told + " Not begun yet.";
    return told + " " + (turn == 1 ? first : second) + " to move.";
}

std::string DateOf(const timespec& time) {
    std::array<char, 64> month{};
    tm local{};
    localtime_r(&time.tv_sec, &local);
    std::strftime(month.data(), month.size(), "%B %Y, %H:%M", &local);
    return std::to_string(local.tm_mday) + " " + month.data();
}

std::string ToldOfFile(const std::string& path, const timespec& saved) {
    try {
        return ToldOfGame(path) + " " + DateOf(saved) + ".";
    } catch (const PlayerError& error) {
        return error.what();
    }
}

}  // namespace

std::vector<GameFile> GameFilesIn(const std::string& folder) {
    std::vector<Found> names;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code none;
        const std::string name = entry->path().filename().string();
        if (EndsWith(name, ".tgf") && entry->is_regular_file(none)) {
            names.push_back({name, SavedAt(entry->path().string())});
        }
    }
    std::sort(names.begin(), names.end(), ComesBefore);
    std::vector<GameFile> files;
    for (const Found& one : names) {
        files.push_back({one.name, ToldOfFile((fs::path(folder) / one.name).string(), one.saved)});
    }
    return files;
}

bool EndsLikeGameFile(const std::string& name) { return EndsWith(name, "tgf"); }

}  // namespace qarn
