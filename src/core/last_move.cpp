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

    void operator()(const Moved& moved) const { Walk(move.underWay.path, moved.path); }
    void operator()(const Attacked& attacked) const {
        if (!attacked.direct) move.underWay.path = {attacked.from, attacked.to};
        move.underWay.fight = attacked.to;
    }
    void operator()(const Returned&) const { move.underWay = {}; }
    void operator()(const TurnCame&) const {
        move.shown = move.underWay;
        move.underWay = {};
    }
    void operator()(const auto&) const {}
};

}  // namespace

void FollowMove(LastMove& move, const Happenings& happenings) {
    for (const Happening& happening : happenings) std::visit(Follow{move}, happening);
}

}  // namespace qarn
