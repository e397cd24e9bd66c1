#include "ai/opponents/node.h"

#include "rules/questions/step.h"

namespace qarn {
namespace {

// A listed march that attacks nobody comes to its end whatever the way.
void WalkThere(Position& position, const Turn& turn) {
    Place(position, turn.people, turn.end);
    position.bytTurn = OtherSide(position.bytTurn);
}

// Only the last step of an attacking march matters, but for a bird that has to return over water.
TurnOutcome WalkAndAttack(Position& position, const Turn& turn, Dice dice) {
    if (IsLoneBirdOnWater(position, turn.people, turn.end) ||
        IsLoneBirdOnWater(position, turn.people, turn.before)) {
        return PlayTurn(position, PlanOf(position, turn), dice);
    }
    Place(position, turn.people, turn.before);
    return PlayTurn(position,
                    {.kind = PlanKind::March,
                     .start = turn.before,
                     .people = turn.people,
                     .path = {turn.end},
                     .casualty = turn.casualty},
                    dice);
}

}  // namespace

std::optional<Attacked> Play(Node& node, const Turn& turn, Dice dice, const Distances& distances) {
    Position& position = node.position;
    if (turn.kind == PlanKind::Pass) {
        position.bytTurn = OtherSide(position.bytTurn);
        return std::nullopt;
    }
    if (turn.kind == PlanKind::March && !turn.attacks) {
        WalkThere(position, turn);
        node.armies.Refresh(position, distances, {turn.start, turn.end});
        return std::nullopt;
    }
    const TurnOutcome outcome = turn.kind == PlanKind::March
                                    ? WalkAndAttack(position, turn, dice)
                                    : PlayTurn(position, PlanOf(position, turn), dice);
    node.winner = outcome.winner;
    if (turn.kind == PlanKind::March) {
        node.armies.Refresh(position, distances, {turn.start, turn.before, turn.end});
    } else {
        node.armies.Refresh(position, distances, {turn.start, turn.end});
    }
    return outcome.attack;
}

}  // namespace qarn
