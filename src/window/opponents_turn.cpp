#include "window/opponents_turn.h"

#include <utility>

#include "core/game.h"
#include "core/opponents.h"
#include "window/board_clicks.h"
#include "window/buttons.h"

namespace qarn {

bool IsOwnMoveUnderWay(const GameRecord& record) {
    return record.Action.blnAIBusy && record.Action.blnOwnMove;
}

bool HasTurnInHand(const Game& game) {
    const GameRecord& record = game.record;
    return IsComputersTurn(record) && (game.controls.tmrAI.Enabled || record.Action.blnAIBusy);
}

bool IsPersonsMoveUnderWay(const GameRecord& record) {
    const bool any = record.blnMoveMode || record.blnAttackMode || record.blnMoveUnderWay ||
                     record.blnCasualtyPending;
    return any && !IsOwnMoveUnderWay(record);
}

bool IsPersonToBegin(const Game& game) {
    const GameRecord& record = game.record;
    return game.blnOpen && !HasTurnInHand(game) && !IsPersonsMoveUnderWay(record) &&
           !IsOwnMoveUnderWay(record) && !record.blnDetailsMode;
}

bool HasFoundNoMove(const Game& game) {
    return IsPersonToBegin(game) && IsComputersTurn(game.record) && !game.record.Standstill.drawn;
}

bool IsPersonToBeginOwn(const Game& game) { return IsPersonToBegin(game) && IsPersonsTurn(game); }

bool IsPersonsTurn(const Game& game) { return game.blnOpen && !IsComputersTurn(game.record); }

bool OpponentActs(const Game& game) {
    const GameRecord& record = game.record;
    if (!IsComputersTurn(record) || !game.controls.tmrAI.Enabled) return false;
    if (record.Standstill.drawn) return false;
    if (IsOwnMoveUnderWay(record)) return record.Action.blnAnswersItself;
    return AnswersItself(game.opponent.at(record.bytTurn)) && !IsPersonsMoveUnderWay(record);
}

bool TakesClicks(const Game& game) { return !OpponentActs(game) || game.record.blnDetailsMode; }

bool TakesPress(const Game& game, const WindowButton& button) {
    return !OpponentActs(game) || button.Click == cmdSquareDetails_Click;
}

void ChooseOpponent(Game& game, std::size_t side, const OpponentChoice& opponent) {
    if (game.opponent[side] == opponent.Name) return;
    game.opponent[side] = opponent.Name;
    GameRecord& record = game.record;
    const bool rested = std::exchange(record.Standstill, {}).drawn;
    if ((rested || record.bytTurn == side) && IsComputersTurn(record))
        game.controls.tmrAI.Enabled = true;
}

}  // namespace qarn
