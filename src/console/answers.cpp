#include "console/answers.h"

#include "console/words.h"
#include "core/game_record.h"
#include "play/stacks.h"
#include "rules/questions/start.h"

namespace qarn {

AttackOdds OddsOfHint(const Attacked& attack) {
    return OddsOfUnits(attack.attack, attack.defense, !attack.roll);
}

std::vector<ReachedSquare> ReachOfGroupInMove(const GameRecord& record) {
    if (!record.blnMoveUnderWay || record.blnChoosing) throw Refusal("No group is in move.");
    const std::optional<MovingGroup> group = GroupInMove(record);
    if (!group) return {};
    return ReachOf(PositionOf(record), *group);
}

std::vector<ReachedSquare> ReachOfStack(const GameRecord& record, Square square) {
    const Position position = PositionInTurnOf(record, square);
    switch (AskStart(position, square)) {
        case StartRefusal::NobodyThere:
            throw Refusal("There is no one on that square.");
        case StartRefusal::OnlyTransports:
            throw Refusal("The cart and/or boat can not go on its own.");
        default:
            return ReachOf(position, WholeStack(position, square));
    }
}

}  // namespace qarn
