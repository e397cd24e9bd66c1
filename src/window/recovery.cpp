#include "window/recovery.h"

#include <utility>

#include "core/file_mark.h"
#include "core/game.h"
#include "core/game_file.h"
#include "shell/kept_recovery.h"
#include "shell/told_time.h"
#include "window/load_game.h"
#include "window/save_game.h"

namespace qarn {
namespace {

std::string TimeOf(const std::string& path) {
    const std::optional<FileMark> mark = MarkOf(path);
    return mark ? ToldTime(mark->seconds) : "unknown";
}

void KeepGame(const Game& game) {
    try {
        KeepRecovery(game.ports, game.record.strGamePath, GameText(game.record));
    } catch (const SaveError&) {
        // It cannot be saved either, and is told so then.
    }
}

// Another program can have saved a game that was left to be recovered.
bool IsOlder(const std::string& kept, const std::string& saved) {
    const auto time = [](const std::string& path) {
        const std::optional<FileMark> mark = MarkOf(path);
        return mark ? std::pair(mark->seconds, mark->nanoseconds) : std::pair<long, long>();
    };
    return time(kept) < time(saved);
}

}  // namespace

void BeginRecovery(Game& game) {
    game.keeping.reset();
    game.keeping = TakeRecovery(game.ports, game.record.strGamePath);
}

void ReturnToRecovery(Game& game) {
    game.keeping.reset();
    if (game.blnOpen) BeginRecovery(game);
}

void FollowRecovery(Game& game) {
    const bool loads = !game.beforeEvent.blnOpen;
    if (!loads && game.keeping) {
        if (Brought<Ended>(game.happenings)) {
            ForgetRecovery(game, game.record.strGamePath);
        } else if (Brought<TurnCame>(game.happenings) && IsKnownScenario(game.record)) {
            KeepGame(game);
        }
    }
    if (!game.blnOpen) game.keeping.reset();
}

void ForgetRecovery(const Game& game, const std::string& strGamePath) {
    if (game.keeping) ForgetRecovery(game.ports, strGamePath);
}

std::optional<std::string> AsksToRecover(Game& game) {
    if (!game.keeping) return std::nullopt;
    const std::string& path = game.record.strGamePath;
    const std::optional<std::string> kept = FindRecovery(game.ports, path);
    if (!kept) return std::nullopt;
    const bool older = IsOlder(*kept, path);
    const std::string text =
        (older ? "The program once came to its end before this game was saved. It has been saved "
                 "since.\nThat turn: "
               : "The program came to its end before this game was saved.\nLast turn: ") +
        TimeOf(*kept) + "\nLast save: " + TimeOf(path) + "\n" + path +
        (older ? "\nDo you want to go back to that turn?"
               : "\nDo you want to go on from the last turn?");
    const Answer answer = game.ports.dialogs.Show(
        {.Title = "Recovery", .Text = text, .Offered = Buttons::YesNo, .DeclinedByDefault = older});
    if (answer == Answer::Yes) return kept;
    SetRecoveryAside(game.ports, path);
    return std::nullopt;
}

}  // namespace qarn
