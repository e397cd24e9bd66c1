#include "ai/choose_move.h"

#include "ai/action.h"
#include "ai/choosers.h"
#include "core/game.h"
#include "core/opponents.h"
#include "window/opponents_turn.h"

namespace qarn {
namespace {

// A direct attack that burns passes the turn before its move has ended.
bool IsPersonsMoveWaiting(const GameRecord& record) {
    return record.blnMoveUnderWay && record.blnMoveFinished && !record.blnCasualtyPending;
}

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

std::optional<Choice> DueChoice(const Game& game) {
    const GameRecord& record = game.record;
    if (!IsComputersTurn(record) || IsOwnMoveUnderWay(record)) return std::nullopt;
    if (record.Standstill.drawn) return std::nullopt;
    const std::string_view opponent = game.opponent.at(record.bytTurn);
    const bool waits =
        AnswersItself(opponent) ? IsPersonsMoveUnderWay(record) : IsPersonsMoveWaiting(record);
    if (waits) return std::nullopt;
    return Choice{opponent, PositionOf(record)};
}

std::optional<Plan> Choose(const Choice& choice, Thinking& thinking) {
    return FindOpponent(choice.opponent)
        ->choose(choice.position, SeedOf(choice.position), thinking);
}

void TakeChoice(Game& game, const Choice& choice, const std::optional<Plan>& plan) {
    if (!plan) {
        game.ports.dialogs.Tell("No good move!");
        return;
    }
    StartAction(game, *plan);
    game.record.Action.blnAnswersItself = AnswersItself(choice.opponent);
}

}  // namespace qarn
