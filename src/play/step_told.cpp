#include "play/step_told.h"

#include <algorithm>

#include "core/game_record.h"
#include "play/stacks.h"
#include "rules/questions/reach.h"
#include "rules/step_texts.h"

namespace qarn {
namespace {

std::string Units(int number) {
    return std::to_string(number) + (number == 1 ? " mobility unit" : " mobility units");
}

std::string NeighbourTold(const Position& position, const MovingGroup& group, Square square) {
    const StepAnswer step = AskStep(position, group, square);
    switch (step.result) {
        case StepResult::PlainStep:
        case StepResult::JoinedOwn:
        case StepResult::DirectAttack:
            return "A step here costs " + Units(step.cost) + " of " +
                   std::to_string(group.mobilityLeft) + ".";
        case StepResult::NotEnoughMobility:
            return TextOf(step.result) + " It costs " + Units(step.cost) + ", and " +
                   std::to_string(group.mobilityLeft) +
                   (group.mobilityLeft == 1 ? " is left." : " are left.");
        case StepResult::AttackCancelled:
            return "You can not directly attack here.";
        case StepResult::Impossible:
            return "Badbeasts do not enter an abbey that is empty.";
        default:
            return TextOf(step.result);
    }
}

}  // namespace

std::string StepTold(const GameRecord& record, Square square) {
    const auto group = GroupInMove(record);
    if (!group || square == group->at) return {};
    const Position position = PositionOf(record);
    if (DistanceBetween(group->at, square) == 1) return NeighbourTold(position, *group, square);
    const auto reach = ReachOf(position, *group);
    const auto way = std::find_if(reach.begin(), reach.end(), [&](const ReachedSquare& reached) {
        return reached.square == square;
    });
    if (way == reach.end()) return "You can not come here in this move.";
    return "Square by square, you come here for " + Units(way->cost) + ".";
}

}  // namespace qarn
