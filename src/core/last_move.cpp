#include "core/last_move.h"

#include <variant>

namespace qarn {
namespace {

// A move comes step by step.
void Walk(Path& path, const Path& steps) {
    if (path.empty()) path.push_back(steps[0]);
    for (std::size_t i = 1; i < steps.size() && path.size() < longestPath; ++i) {
        path.push_back(steps[i]);
    }
}

struct Follow {
    LastMove& move;
    bool passed = false;  // the turn, in this event

    // After a burning, which passes the turn, the step into the fire still belongs to the move.
    void operator()(const Moved& moved) {
        Walk(passed ? move.shown.path : move.underWay.path, moved.path);
    }
    void operator()(const Attacked& attacked) const {
        if (!attacked.direct) move.underWay.path = {attacked.from, attacked.to};
        move.underWay.fight = attacked.to;
    }
    void operator()(const Returned&) const { move.underWay = {}; }
    void operator()(const TurnCame&) {
        passed = true;
        move.shown = move.underWay;
        move.underWay = {};
    }
    void operator()(const auto&) const {}
};

}  // namespace

void FollowMove(LastMove& move, const Happenings& happenings) {
    Follow follow{move};
    for (const Happening& happening : happenings) std::visit(follow, happening);
}

}  // namespace qarn
