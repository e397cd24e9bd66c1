#include "core/turn_cycle.h"

#include "core/game.h"

namespace qarn {
namespace {

void StartComputer(Game& game) {
    if (IsComputersTurn(game.record)) game.controls.tmrAI.Enabled = true;
}

std::uint8_t DrawFirstSide(RandomNumbers& random) {
    return static_cast<std::uint8_t>(static_cast<int>(2 * random.Next()) + 1);
}

}  // namespace

void StartTurns(Game& game) {
    GameRecord& record = game.record;
    if (record.bytTurn == 0) record.bytTurn = DrawFirstSide(game.ports.random);
    game.happenings.emplace_back(TurnCame{record.bytTurn});
    game.controls.lblStatus.Caption = "It is " + record.strPlayerName[record.bytTurn] + "'s turn.";
    StartComputer(game);
}

void ShowTurn(Game& game, bool switchSide) {
    GameRecord& record = game.record;
    if (switchSide) {
        record.bytTurn = OtherSide(record.bytTurn);
        game.happenings.emplace_back(TurnCame{record.bytTurn});
    }

    std::string text = "It is " + record.strPlayerName[record.bytTurn == 2 ? 2 : 1];
    const bool endsInS = text.ends_with('s') || text.ends_with('S');
    text += endsInS ? "'" : "'s";
    game.controls.lblStatus.Caption = text + " turn.";

    StartComputer(game);
}

}  // namespace qarn
