#include "ui/square_marks.h"

#include <algorithm>

#include "core/game.h"

namespace qarn {
namespace {

// Each square bears the mark that it was given first.
void Mark(std::vector<MarkedSquare>& marks, int X, int Y, SquareRole role) {
    const bool marked = std::any_of(marks.begin(), marks.end(), [&](const MarkedSquare& mark) {
        return mark.X == X && mark.Y == Y;
    });
    if (!marked) marks.push_back({X, Y, role});
}

// While the dice roll, no attacker is chosen any more; then only the button tells of the attack.
bool IsAttackUnderWay(const Game& game) {
    const GameRecord& record = game.record;
    return record.blnAttackMode && (record.blnAttackerChosen || record.blnCasualtyPending ||
                                    game.controls.cmdAttack.Caption == "Attacking...");
}

}  // namespace

std::vector<MarkedSquare> MarkedSquares(const Game& game) {
    const GameRecord& record = game.record;
    std::vector<MarkedSquare> marks;
    const bool attacks = IsAttackUnderWay(game);
    if (record.blnMoveUnderWay) {
        Mark(marks, record.bytGroupX, record.bytGroupY, SquareRole::Acting);
    } else if (attacks) {
        Mark(marks, record.bytAnchorX, record.bytAnchorY, SquareRole::Acting);
    }
    if (attacks) Mark(marks, record.bytLastX, record.bytLastY, SquareRole::Target);
    if (record.blnMoveUnderWay) {
        Mark(marks, record.bytStartX, record.bytStartY, SquareRole::Start);
    }
    return marks;
}

}  // namespace qarn
