#include "ai/draw_offer.h"

#include "ai/locked_position.h"
#include "ai/opponents/evaluation.h"
#include "core/game.h"
#include "core/opponents.h"
#include "rules/casualties.h"

namespace qarn {
namespace {

bool IsPlayedByOpponent(const Game& game, std::uint8_t side) {
    return game.record.blnComputer[side] && AnswersItself(game.opponent[side]);
}

bool PersonAgrees(Game& game) {
    const std::string& name = game.record.strPlayerName[game.record.bytTurn];
    return game.ports.dialogs.Show({.Title = "Draw",
                                    .Text = name + " offers a draw: for " +
                                            std::to_string(turnsOfALock) +
                                            " turns neither side has come any further.\nDo you "
                                            "agree? The game then ends, and its file is deleted.",
                                    .Offered = Buttons::YesNo,
                                    .DeclinedByDefault = true,
                                    .ForThePerson = true}) == Answer::Yes;
}

// How likely to win an opponent must think itself at most to take a draw.
constexpr float worse = 0.45F;

}  // namespace

bool TakesDraw(const Game& game) {
    const GameRecord& record = game.record;
    if (!IsPlayedByOpponent(game, OtherSide(record.bytTurn))) return false;
    const Position position = PositionOf(record);
    const float persons = Evaluate(position, DistancesFor(position), learnedWeights);
    return IsLocked(record.Standstill) || 1 - persons < worse;
}

bool AgreesOnDraw(Game& game) {
    GameRecord& record = game.record;
    NoteEvaluations(record.Standstill, PositionOf(record));
    if (!IsLocked(record.Standstill)) return false;
    record.Standstill = {.turns = 1};
    if (IsPlayedByOpponent(game, OtherSide(record.bytTurn))) {
        TellDraw(game);
        record.Standstill.drawn = true;
        return true;
    }
    if (PersonAgrees(game)) EndDrawnGame(game);
    return false;
}

}  // namespace qarn
