#include "ai/opponents/selection.h"

#include <algorithm>

namespace qarn {
namespace {

bool MerelyMarches(const Turn& turn) { return turn.kind == PlanKind::March && !turn.attacks; }

bool AreAlike(const Turn& a, const Turn& b) {
    return MerelyMarches(a) && MerelyMarches(b) && a.people == b.people;
}

}  // namespace

void SortByValue(std::vector<RatedTurn>& turns) {
    std::stable_sort(turns.begin(), turns.end(),
                     [](const RatedTurn& a, const RatedTurn& b) { return a.value > b.value; });
}

// A stack has dozens of squares to go to, which would leave no room for what the others can do.
void KeepBest(std::vector<RatedTurn>& turns, std::size_t most, std::size_t alike) {
    std::vector<RatedTurn> kept;
    for (const RatedTurn& one : turns) {
        if (kept.size() == most) break;
        const auto same = std::count_if(kept.begin(), kept.end(), [&](const RatedTurn& other) {
            return AreAlike(one.turn, other.turn);
        });
        if (static_cast<std::size_t>(same) < alike) kept.push_back(one);
    }
    turns = std::move(kept);
}

}  // namespace qarn
