#pragma once

#include <optional>
#include <string>

#include "ai/choose_move.h"
#include "core/happenings.h"
#include "core/plan.h"

namespace qarn {

struct Game;
struct GameRecord;

/// What a person could do in the turn of the side to move.
struct Hint {
    Plan plan;
    /// What its attack would set against each other, if it is one; without a roll where the target
    /// burns down.
    std::optional<Attacked> attack;
    std::string sentence;  ///< tells it to the person
};

/// The hint that a plan is, as far as the rules allow it. The game stands as at the beginning of
/// the turn.
Hint HintOf(const GameRecord& record, const Plan& plan);

/// The choice that a hint is made of: the strongest opponent's, for the side to move.
Choice ChoiceOfHint(const Game& game);

/// Shows the hint that came of that choice; when nothing did, it is to pass.
Hint ShowHint(Game& game, const std::optional<Plan>& plan);

}  // namespace qarn
