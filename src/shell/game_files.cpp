#include "shell/game_files.h"

#include <strings.h>

#include <algorithm>
#include <filesystem>
#include <utility>

#include "core/code_page.h"
#include "core/file_mark.h"
#include "core/game_file.h"
#include "scenarios/catalogue.h"
#include "shell/told_time.h"

namespace qarn {
namespace {

namespace fs = std::filesystem;

bool EndsWith(const std::string& name, const std::string& end) {
    return name.size() >= end.size() &&
           strcasecmp(name.c_str() + name.size() - end.size(), end.c_str()) == 0;
}

struct Found {
    std::string name;
    FileMark mark;
};

bool ComesBefore(const Found& one, const Found& other) {
    const auto savedAt = [](const Found& found) {
        return std::pair(found.mark.seconds, found.mark.nanoseconds);
    };
    if (savedAt(one) != savedAt(other)) return savedAt(one) > savedAt(other);
    const int order = strcasecmp(one.name.c_str(), other.name.c_str());
    return order != 0 ? order < 0 : one.name < other.name;
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

std::string ToldOfFile(const std::string& path, const FileMark& mark) {
    try {
        return ToldOfGame(path) + " " + ToldTime(mark.seconds) + ".";
    } catch (const PlayerError& error) {
        return error.what();
    }
}

}  // namespace

std::vector<GameFile> GameFilesIn(const std::string& folder) {
    std::vector<Found> found;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code none;
        const std::string name = entry->path().filename().string();
        if (!EndsWith(name, ".tgf") || !entry->is_regular_file(none)) continue;
        if (const auto mark = MarkOf(entry->path().string())) found.push_back({name, *mark});
    }
    std::sort(found.begin(), found.end(), ComesBefore);
    std::vector<GameFile> files;
    for (const auto& [name, mark] : found) {
        files.push_back({name, ToldOfFile((fs::path(folder) / name).string(), mark)});
    }
    return files;
}

bool EndsLikeGameFile(const std::string& name) { return EndsWith(name, "tgf"); }

}  // namespace qarn
