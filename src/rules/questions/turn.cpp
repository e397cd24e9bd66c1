#include "rules/questions/turn.h"

#include "rules/questions/attack.h"
#include "rules/questions/start.h"
#include "rules/questions/step.h"

namespace qarn {
namespace {

bool CanSetOut(const Position& position, const Plan& plan) {
    const PeopleSet strangers = plan.people - ListedOn(position, plan.start);
    return AskStart(position, plan.start) == StartRefusal::None && strangers.Empty();
}

bool CanAttack(const Position& position, Square from, Square to, bool blnDirect) {
    return AskAttack(position, from, to, blnDirect).refusal == AttackRefusal::None;
}

// A group on its way. It stands on each square of it in turn: who attacks together depends on that.
class AllowedMarch {
public:
    AllowedMarch(const Position& position, const Plan& plan)
        : position_(position),
          group_{plan.people, plan.start, StrengthOf(position, plan.people).Mobility} {}

    void Step(Square to) {
        if (stopped_ || group_.mobilityLeft == 0) return;
        const StepAnswer step = AskStep(position_, group_, to);
        if (step.result == StepResult::DirectAttack) {
            if (!CanAttack(position_, group_.at, to, true)) return;
            attacks_ = stopped_ = true;
            path_.push_back(to);
            return;
        }
        if (step.enters) Enter(to, step.cost);
        stopped_ = step.result == StepResult::JoinedOwn;
    }

    bool IsAny() const {
        return !path_.empty() &&
               (attacks_ || !IsLoneBirdOnWater(position_, group_.people, group_.at));
    }

    const Path& Way() const { return path_; }

private:
    void Enter(Square to, int cost) {
        path_.push_back(to);
        Place(position_, group_.people, to);
        group_.at = to;
        group_.mobilityLeft -= cost;
    }

    Position position_;
    MovingGroup group_;
    Path path_;
    bool attacks_ = false;
    bool stopped_ = false;
};

Plan AllowedPartOfMarch(const Position& position, const Plan& plan) {
    if (!CanSetOut(position, plan)) return {};
    AllowedMarch march(position, plan);
    for (const Square square : plan.path) march.Step(square);
    if (!march.IsAny()) return {};
    Plan allowed = plan;
    allowed.path = march.Way();
    return allowed;
}

}  // namespace

Plan AllowedPart(const Position& position, const Plan& plan) {
    if (plan.kind == PlanKind::March) return AllowedPartOfMarch(position, plan);
    const bool refused =
        plan.kind == PlanKind::Attack && !CanAttack(position, plan.start, plan.target, false);
    return refused ? Plan{} : plan;
}

}  // namespace qarn
