#include "core/last_move.h"

#include <variant>

namespace qarn {
namespace {

// A move comes step by step. One that was taken back in part goes on from where it is now.
void Walk(Path& path, const Path& steps) {
    std::size_t kept = path.size();
    while (kept > 0 && path[kept - 1] != steps[0]) --kept;
    Path walked;
    for (std::size_t i = 0; i + 1 < kept; ++i) walked.push_back(path[i]);
    for (const Square square : steps) {
        if (walked.size() < longestPath) walked.push_back(square);
    }
    path = walked;
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
