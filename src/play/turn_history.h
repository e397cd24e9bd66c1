#pragma once

#include <cstddef>
#include <functional>
#include <string_view>
#include <vector>

#include "core/game.h"

namespace qarn {

/// The events of a person's turn so far, for taking them back: every click, press and tick of a
/// move or an attack, with the whole of how the game stood before it. Once a die has been rolled or
/// a box of the rules has been confirmed, there are none until that move or attack is over; nor are
/// there any once the turn has passed.
class TurnHistory {
public:
    /// Runs the handler of an event as RunEvent does, and notes it. Afterwards Play > Take Back and
    /// Play > Cancel Move can be chosen while there is something to take back.
    bool Run(Game& game, std::string_view name, const std::function<void(Game&)>& handler);

    /// Notes an event that was run by something else: a tick of the computer's timer.
    void NoteTick(Game& game);

    /// How many events can be taken back.
    std::size_t Events() const { return before_.size(); }

    /// True when the last event has taken others back.
    bool TookBack() const { return tookBack_; }

    /// Takes the last event back: everything is as it was before it, but for what the game is
    /// called, settings, and what is looked at. There must be one.
    void TakeBack(Game& game);

    /// Takes the move or attack that has begun back, to its start. The menu item must be offered.
    void CancelMove(Game& game);

private:
    void Note(Game& game, bool played, bool confirmed);
    void TakeBackTo(Game& game, std::size_t event);
    std::size_t StartOfMove(const Game& game) const;

    std::vector<GameState> before_;  // each of the events, the oldest first
    bool tookBack_ = false;
    bool closed_ = false;  // until the move or attack under way is over
};

}  // namespace qarn
