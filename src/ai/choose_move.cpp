#include "ai/choose_move.h"

#include "ai/action.h"
#include "ai/choosers.h"
#include "core/game.h"
#include "core/position.h"

namespace qarn {
namespace {

// Made of what stands where, so that the same game comes to the same choices, whatever else is
// drawn. (Fowler, Noll and Vo's hash, 1a.)
std::uint64_t SeedOf(const Position& position) {
    std::uint64_t seed = 0xCBF29CE484222325;
    const auto mix = [&](std::uint8_t byte) { seed = (seed ^ byte) * 0x100000001B3; };
    mix(position.bytTurn);
    for (const Group& one : position.People) {
        mix(one.LocationX);
        mix(one.LocationY);
    }
    return seed;
}

}  // namespace

void ChooseMove(Game& game) {
    const std::string_view name = game.opponent.at(game.record.bytTurn);
    const Position position = PositionOf(game.record);
    Thinking thinking;
    const std::optional<Plan> plan =
        FindOpponent(name)->choose(position, SeedOf(position), thinking);
    if (!plan) {
        game.ports.dialogs.Tell("No good move!");
        return;
    }
    StartAction(game, *plan);
    game.record.Action.blnAnswersItself = name != "classic";
}

}  // namespace qarn
