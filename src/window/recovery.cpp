#include "window/recovery.h"

#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <ctime>
#include <variant>

#include "core/game.h"
#include "core/game_file.h"
#include "shell/kept_recovery.h"
#include "window/load_game.h"
#include "window/save_game.h"

namespace qarn {
namespace {

template <typename Kind>
bool Brought(const Happenings& happenings) {
    return std::any_of(happenings.begin(), happenings.end(),
                       [](const Happening& one) { return std::holds_alternative<Kind>(one); });
}

std::string TimeOf(const std::string& path) {
    struct stat status {};
    std::tm time{};
    std::array<char, 64> text{};
    const bool known = stat(path.c_str(), &status) == 0 &&
                       localtime_r(&status.st_mtim.tv_sec, &time) != nullptr &&
                       std::strftime(text.data(), text.size(), "%B %Y, %H:%M:%S", &time) > 0;
    return known ? std::to_string(time.tm_mday) + " " + text.data() : "unknown";
}

void KeepGame(const Game& game) {
    try {
        KeepRecovery(game.ports, game.record.strGamePath, GameText(game.record));
    } catch (const SaveError&) {
        // It cannot be saved either, and is told so then.
    }
}

}  // namespace

void FollowRecovery(const Game& game) {
    const bool loads = !game.beforeEvent.blnOpen;
    if (loads) return;
    if (Brought<Ended>(game.happenings)) {
        ForgetRecovery(game.ports, game.record.strGamePath);
    } else if (Brought<TurnCame>(game.happenings) && IsKnownScenario(game.record)) {
        KeepGame(game);
    }
}

std::optional<std::string> AsksToRecover(Game& game) {
    const std::string& path = game.record.strGamePath;
    const std::optional<std::string> kept = FindRecovery(game.ports, path);
    if (!kept) return std::nullopt;
    const std::string text =
        "The program came to its end before this game was saved.\nLast turn: " + TimeOf(*kept) +
        "\nLast save: " + TimeOf(path) + "\n" + path + "\nDo you want to go on from the last turn?";
    const Answer answer =
        game.ports.dialogs.Show({.Title = "Recovery", .Text = text, .Offered = Buttons::YesNo});
    if (answer == Answer::Yes) return kept;
    SetRecoveryAside(game.ports, path);
    return std::nullopt;
}

}  // namespace qarn
