#include <array>
#include <system_error>

#include "console/session.h"
#include "console/words.h"
#include "core/file_store.h"
#include "core/game_file.h"
#include "core/player_error.h"
#include "scenarios/catalogue.h"
#include "shell/file_commands.h"
#include "shell/kept_journal.h"
#include "shell/kept_opponents.h"
#include "shell/kept_recovery.h"
#include "window/load_game.h"
#include "window/save_game.h"

// The commands that make, open and leave games.

namespace qarn {
namespace {

Player ParsePlayer(const std::string& name, const std::string& kind) {
    if (kind != "human" && kind != "computer") {
        throw Refusal("A player is \"human\" or \"computer\", not \"" + kind + "\".");
    }
    return {.strPlayerName = name, .blnComputer = kind == "computer"};
}

std::string TextOfNewGame(const std::string& code, const std::array<Player, 2>& players) {
    if (ScenarioNumber(code) == 0) throw Refusal("There is no scenario \"" + code + "\".");
    try {
        return NewGameText(code, players);
    } catch (const SaveError& error) {
        throw Refusal(error.what());
    }
}

// Gives false when the game in progress could not be saved and stays open.
bool LeaveGame(Game& game) {
    if (!game.blnOpen) return true;
    game.record.blnLeaving = true;
    Form_Unload(game);
    return !game.blnOpen;
}

}  // namespace

void Session::New(const Words& words) {
    RequireRunning();
    const std::string path = ParsePath(words[1]);
    const std::string text =
        TextOfNewGame(words[2], {ParsePlayer(words[3], words[4]), ParsePlayer(words[5], words[6])});
    Load(path, [&] {
        try {
            ReplaceFile(path, text);
            KeepOpponents(game_.ports, path, {"", classicOpponent, classicOpponent});
            ForgetJournal(game_.ports, path);
            ForgetRecovery(game_.ports, path);
        } catch (const std::system_error& error) {
            throw SaveError("The new game can not be written. " + error.code().message() + ".\n" +
                            path);
        }
    });
}

void Session::Open(const Words& words) {
    RequireRunning();
    Load(ParsePath(words[1]), [] {});
}

void Session::Load(const std::string& path, const std::function<void()>& prepare) {
    bool opened = false;
    Run("Form_Load", [&](Game& game) {
        if (!LeaveGame(game)) return;
        prepare();
        Form_Load(game, path);
        LoadFileTypeMark(game);
        opened = true;
    });
    if (opened) journal_.Open(game_);
    if (!opened && !game_.blnEnded) throw Refusal("The game could not be opened.");
}

void Session::Close(const Words&) { Run("Form_Unload", Form_Unload); }

void Session::CloseWithoutBoxes() {
    if (game_.blnOpen) Run("Form_Unload", qarn::CloseWithoutBoxes);
}

}  // namespace qarn
