#pragma once

#include <optional>

#include "core/game.h"
#include "core/plan.h"
#include "core/position.h"
#include "rules/play_turn.h"

namespace qarn {

/// Holds each turn that was played through the window's handlers against the same turn played on
/// the position.
class TurnCheck {
public:
    /// Begins with the turn that the game stands in.
    void Begin(const Game& game);

    /// Follows what one event has brought about, and compares when it has ended the turn.
    void Follow(const Game& game, const Happenings& happenings);

    /// The turn holds what no plan does, such as a move that was taken back, and is not compared.
    void PassOver() { comparable_ = false; }

private:
    void Note(const Moved& moved);
    void Note(const Attacked& attacked);
    void Note(const Lost& lost);
    void Note(const Returned&) { PassOver(); }
    void Note(const auto&) {}
    void WalkTo(Square square);
    void Compare(const Game& game) const;

    Position start_;
    Plan plan_;
    Dice dice_;
    bool attacked_ = false;
    bool comparable_ = false;
};

}  // namespace qarn
