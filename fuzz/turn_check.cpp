#include "turn_check.h"

#include <variant>

#include "core/player_error.h"
#include "target.h"

namespace qarn {

void TurnCheck::Begin(const Game& game) {
    *this = {};
    start_ = PositionOf(game.record);
    comparable_ = game.blnOpen;
}

void TurnCheck::Follow(const Game& game, const Happenings& happenings) {
    for (const Happening& happening : happenings) {
        std::visit([this](const auto& one) { Note(one); }, happening);
    }
    if (!Brought<TurnCame>(happenings)) return;
    if (comparable_ && game.blnOpen) Compare(game);
    Begin(game);
}

void TurnCheck::Note(const Moved& moved) {
    if (plan_.kind == PlanKind::Pass) {
        plan_ = {.kind = PlanKind::March, .start = moved.path[0], .people = moved.people};
    }
    if (plan_.people != moved.people) PassOver();
    if (!attacked_) WalkTo(moved.path.back());  // else onto the square that was won
}

void TurnCheck::Note(const Attacked& attacked) {
    const bool burned = !attacked.roll;  // may leave the turn, or pass it before the move ends
    if (burned || attacked_) return PassOver();
    attacked_ = true;
    dice_ = {*attacked.roll, attacked.secondRoll.value_or(1)};
    if (!attacked.direct) {
        plan_ = {.kind = PlanKind::Attack, .start = attacked.from, .target = attacked.to};
    } else if (plan_.kind == PlanKind::March) {
        WalkTo(attacked.to);
    } else {
        PassOver();  // who goes is not told
    }
}

void TurnCheck::Note(const Lost& lost) {
    if (lost.side == start_.bytTurn) plan_.casualty = lost.people.First();
}

void TurnCheck::WalkTo(Square square) {
    if (plan_.path.size() == longestPath) return PassOver();
    plan_.path.push_back(square);
}

void TurnCheck::Compare(const Game& game) const {
    Position played = start_;
    try {
        PlayTurn(played, plan_, dice_);
    } catch (const PlayerError&) {
        return;  // a stack too strong for its eight bits
    }
    Require(played == PositionOf(game.record),
            "a turn comes to the same by the handlers and on a position");
}

}  // namespace qarn
