#include "window/play_again.h"

#include <system_error>
#include <utility>

#include "core/file_store.h"
#include "core/game.h"
#include "core/game_file.h"
#include "scenarios/catalogue.h"
#include "shell/kept_opponents.h"

namespace qarn {

void WriteGameAgain(const Game& game, bool exchanged) {
    const GameRecord& record = game.record;
    std::array<Player, 2> players{Player{record.strPlayerName[1], record.blnComputer[1]},
                                  Player{record.strPlayerName[2], record.blnComputer[2]}};
    Opponents opponents = game.opponent;
    if (exchanged) {
        std::swap(players[0], players[1]);
        std::swap(opponents[1], opponents[2]);
    }
    std::string code;
    ScenarioCode(record.bytScenario, code);
    try {
        ReplaceFile(record.strGamePath, NewGameText(code, players));
    } catch (const std::system_error& error) {
        throw SaveError("The new game can not be written. " + error.code().message() + ".\n" +
                        record.strGamePath);
    }
    KeepOpponents(game.ports, record.strGamePath, opponents);
}

}  // namespace qarn
