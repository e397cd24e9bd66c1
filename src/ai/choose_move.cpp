#include "ai/choose_move.h"

#include "ai/action.h"
#include "ai/choosers.h"
#include "core/game.h"

namespace qarn {

void ChooseMove(Game& game) {
    constexpr std::uint64_t anySeed = 0;
    const std::optional<Plan> plan =
        FindOpponent("classic")->choose(PositionOf(game.record), anySeed);
    if (plan) {
        StartAction(game, *plan);
    } else {
        game.ports.dialogs.Tell("No good move!");
    }
}

}  // namespace qarn
