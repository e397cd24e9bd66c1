#include "play/end_by_agreement.h"

#include "ai/draw_offer.h"
#include "core/game.h"
#include "rules/casualties.h"

namespace qarn {
namespace {

bool Agrees(Game& game, const std::string& title, const std::string& text) {
    return game.ports.dialogs.Show({.Title = title,
                                    .Text = text,
                                    .Offered = Buttons::YesNo,
                                    .DeclinedByDefault = true}) == Answer::Yes;
}

const std::string& NameOf(const Game& game, std::uint8_t side) {
    return game.record.strPlayerName.at(side);
}

}  // namespace

void mnuResign_Click(Game& game) {
    const std::uint8_t winner = OtherSide(game.record.bytTurn);
    if (!Agrees(game, "Resign",
                "Do you want to resign? " + NameOf(game, winner) +
                    " then wins, and the game's file is deleted.")) {
        return;
    }
    EndWonGame(game, {.winner = winner, .resigned = true});
}

void mnuOfferDraw_Click(Game& game) {
    const std::uint8_t side = game.record.bytTurn;
    const std::string& other = NameOf(game, OtherSide(side));
    if (!game.record.blnComputer.at(OtherSide(side))) {
        const std::string offer = NameOf(game, side) + " offers a draw.\n" + other +
                                  ", do you agree? The game then ends, and its file is deleted.";
        if (Agrees(game, "Draw", offer)) EndDrawnGame(game);
        return;
    }
    if (!Agrees(game, "Draw",
                "Do you want to offer a draw? If " + other +
                    " agrees, the game ends, and its file is deleted.")) {
        return;
    }
    if (TakesDraw(game)) EndDrawnGame(game);
    game.ports.dialogs.Show({.Title = "Draw", .Text = other + " declines the draw."});
}

}  // namespace qarn
