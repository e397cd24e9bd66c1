#include "play/pass_turn.h"

#include "core/game.h"
#include "core/position.h"
#include "rules/movement.h"
#include "rules/questions/start.h"
#include "window/board_clicks.h"

namespace qarn {
namespace {

std::string Question(const GameRecord& record) {
    if (!IsComputersTurn(record)) return "Do you want to pass your turn?";
    return "Do you want to pass the turn of " + record.strPlayerName.at(record.bytTurn) + "?";
}

}  // namespace

void PassTurn(Game& game) {
    const Square square = SquareToPassFrom(PositionOf(game.record));
    cmdMove_Click(game);
    lblX_Click(game, square.X, square.Y);
    cmdDoneSel_Click(game);
    cmdMove_Click(game);
}

void mnuPassTurn_Click(Game& game) {
    const Answer answer = game.ports.dialogs.Show(
        {.Title = "Pass Turn", .Text = Question(game.record), .Offered = Buttons::YesNo});
    if (answer == Answer::Yes) PassTurn(game);
}

}  // namespace qarn
