#pragma once

#include <optional>
#include <string_view>

#include "ai/chooser.h"
#include "core/plan.h"
#include "core/position.h"

namespace qarn {

struct Game;

/// A choice that is to be made, and all that it depends on.
struct Choice {
    std::string_view opponent;  ///< by its name in the table of choosers
    Position position;

    friend bool operator==(const Choice&, const Choice&) = default;
};

/// The choice that a tick of tmrAI now makes; none when it makes none: in a person's turn, while an
/// action is being replayed, while a person's move is to be ended first, and after a draw. An
/// opponent that answers for itself waits for any move or attack of a person, Classic for a
/// finished move alone.
std::optional<Choice> DueChoice(const Game& game);

/// Has the opponent choose; nothing when it finds nothing to do. Needs no game, and may run on any
/// thread.
std::optional<Plan> Choose(const Choice& choice, Thinking& thinking);

/// Starts the action that was chosen. Shows the box "No good move!" and starts nothing when nothing
/// was found.
void TakeChoice(Game& game, const Choice& choice, const std::optional<Plan>& plan);

}  // namespace qarn
