#include "shell/kept_opponents.h"

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <system_error>
#include <vector>

#include "core/file_store.h"
#include "core/opponents.h"
#include "core/ports.h"
#include "shell/true_path.h"

namespace qarn {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t mostGames = 100;
constexpr Opponents classicAlone{"", classicOpponent, classicOpponent};

// A line of the file: both opponents, and the path of the game, which may have blanks.
struct KeptGame {
    Opponents opponents;
    std::string path;
};

fs::path FileOf(const Ports& ports) { return fs::path(ports.folders.userData) / "opponents"; }

std::string_view KnownName(const std::string& word) {
    const OpponentChoice* choice = FindOpponentChoice(word);
    return choice == nullptr ? std::string_view() : choice->Name;
}

// Lines that nobody can have written are passed over, and so is a file that cannot be read.
std::vector<KeptGame> ReadGames(const Ports& ports) {
    std::vector<KeptGame> games;
    if (ports.folders.userData.empty()) return games;
    std::istringstream text;
    try {
        text.str(ReadWholeFile(FileOf(ports).string()));
    } catch (const std::system_error&) {
        return games;
    }
    for (std::string line; games.size() < mostGames && std::getline(text, line);) {
        std::istringstream words(line);
        std::string first, second, path;
        words >> first >> second;
        std::getline(words >> std::ws, path);
        const KeptGame game{{"", KnownName(first), KnownName(second)}, path};
        if (game.opponents[1].empty() || game.opponents[2].empty() || path.empty()) continue;
        games.push_back(game);
    }
    return games;
}

void WriteGames(const Ports& ports, const std::vector<KeptGame>& games) {
    std::ostringstream text;
    for (const KeptGame& game : games) {
        text << game.opponents[1] << ' ' << game.opponents[2] << ' ' << game.path << '\n';
    }
    try {
        fs::create_directories(ports.folders.userData);
        ReplaceFile(FileOf(ports).string(), text.str());
    } catch (const std::system_error& error) {
        ports.dialogs.Tell("The opponents of this game can not be kept: " + error.code().message() +
                           ".\n" + FileOf(ports).string());
    }
}

}  // namespace

Opponents KeptOpponents(const Ports& ports, const std::string& strGamePath) {
    const std::string path = TruePath(strGamePath);
    for (const KeptGame& game : ReadGames(ports)) {
        if (game.path == path) return game.opponents;
    }
    return classicAlone;
}

void KeepOpponents(const Ports& ports, const std::string& strGamePath, const Opponents& opponents) {
    if (ports.folders.userData.empty()) return;
    const std::string path = TruePath(strGamePath);
    if (path.find('\n') != path.npos || KeptOpponents(ports, path) == opponents) return;
    std::vector<KeptGame> games = ReadGames(ports);
    std::erase_if(games, [&](const KeptGame& game) { return game.path == path; });
    if (opponents != classicAlone) games.insert(games.begin(), {opponents, path});
    if (games.size() > mostGames) games.resize(mostGames);
    WriteGames(ports, games);
}

}  // namespace qarn
