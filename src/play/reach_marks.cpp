#include "play/reach_marks.h"

#include "core/eight_bit.h"
#include "core/game.h"
#include "play/stacks.h"
#include "play/strikes.h"
#include "rules/questions/reach.h"
#include "rules/questions/start.h"
#include "window/opponents_turn.h"

namespace qarn {
namespace {

std::vector<ReachMark> MarksOf(const Position& position, const MovingGroup& group) {
    std::vector<ReachMark> marks;
    for (const ReachedSquare& reached : ReachOf(position, group)) {
        marks.push_back({reached.square, reached.attack ? ReachKind::Attacked : ReachKind::Reached,
                         static_cast<std::uint8_t>(reached.cost)});
    }
    return marks;
}

// Of a person who plays against the computer, in either's turn; else of the side to move.
std::uint8_t EnemySide(const GameRecord& record) {
    if (record.blnComputer[1] != record.blnComputer[2]) return record.blnComputer[1] ? 1 : 2;
    return OtherSide(record.bytTurn);
}

std::vector<ReachMark> MarksOfStrikes(const GameRecord& record) {
    std::vector<ReachMark> marks;
    for (const Square square : StrikesOf(PositionOf(record), EnemySide(record))) {
        marks.push_back({square, ReachKind::Struck});
    }
    return marks;
}

std::vector<ReachMark> MarksOfLook(const GameRecord& record, const Look& look) {
    if (record.blnMoveUnderWay || record.blnAttackMode) return {};
    if (look.strikes) return MarksOfStrikes(record);
    if (look.square == Square{}) return {};
    const Position position = PositionInTurnOf(record, look.square);
    if (AskStart(position, look.square) != StartRefusal::None) return {};
    return MarksOf(position, WholeStack(position, look.square));
}

}  // namespace

std::vector<ReachMark> ReachMarks(const Game& game, const Look& look) {
    const GameRecord& record = game.record;
    if (!game.view.reach || IsOwnMoveUnderWay(record)) return {};
    try {
        const auto group = GroupInMove(record);
        return group ? MarksOf(PositionOf(record), *group) : MarksOfLook(record, look);
    } catch (const EightBitOverflow&) {
        return {};
    }
}

}  // namespace qarn
