#include "ui/square_marks.h"

#include <algorithm>

#include "core/game_record.h"

namespace qarn {
namespace {

// Each square bears the mark that it was given first.
void Mark(std::vector<MarkedSquare>& marks, int X, int Y, SquareRole role) {
    const bool marked = std::any_of(marks.begin(), marks.end(), [&](const MarkedSquare& mark) {
        return mark.X == X && mark.Y == Y;
    });
    if (!marked) marks.push_back({X, Y, role});
}

// Once the attack is carried out no attacker is chosen any more.
bool IsAttackUnderWay(const GameRecord& record) {
    return record.blnAttackMode && (record.blnAttackerChosen || record.blnAttacking);
}

}  // namespace

std::vector<MarkedSquare> MarkedSquares(const GameRecord& record) {
    std::vector<MarkedSquare> marks;
    const bool attacks = IsAttackUnderWay(record);
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
