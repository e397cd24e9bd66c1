#include "window/hint_mark.h"

#include "core/game.h"
#include "core/position.h"
#include "window/opponents_turn.h"

namespace qarn {
namespace {

// Whoever has stepped has paid for it.
bool HasMoved(const GameRecord& record) {
    if (record.blnMoveFinished) return true;
    if (!record.blnMoveUnderWay || !record.blnMobilitySet) return false;
    const PeopleSet people = PeopleSet::Of(Selection(record));
    return record.bytMobilityLeft < StrengthOf(PositionOf(record), people).Mobility;
}

}  // namespace

bool IsHintOffered(const Game& game) {
    return game.blnOpen && !HasTurnInHand(game) && !HasMoved(game.record) &&
           !game.record.blnCasualtyPending;
}

void mnuHint_Click(Game& game) { game.blnHintWanted = true; }

void PutHint(Game& game, const HintMark& mark, const std::string& sentence) {
    DropHint(game);
    Controls& controls = game.controls;
    controls.Hint = mark;
    controls.Hint.Visible = true;
    controls.Hint.Sentence = sentence;
    controls.Hint.StatusBefore = controls.lblStatus.Caption;
    controls.lblStatus.Caption = sentence;
}

void ForgetHint(Game& game) {
    game.controls.Hint = {};
    game.blnHintWanted = false;
}

void DropHint(Game& game) {
    Controls& controls = game.controls;
    if (controls.Hint.Visible && controls.lblStatus.Caption == controls.Hint.Sentence) {
        controls.lblStatus.Caption = controls.Hint.StatusBefore;
    }
    ForgetHint(game);
}

}  // namespace qarn
