#include "play/odds_ahead.h"

#include <algorithm>

#include "core/eight_bit.h"
#include "core/game.h"
#include "play/stacks.h"
#include "rules/questions/reach.h"
#include "window/opponents_turn.h"

namespace qarn {
namespace {

bool AnyOfSide(const Position& position, Square square, std::uint8_t side) {
    const PeopleSet people = PeopleOn(position, square);
    return std::any_of(people.begin(), people.end(),
                       [&](std::uint8_t i) { return position.People[i].Side == side; });
}

std::optional<AttackOdds> OddsByCommand(const GameRecord& record, const Position& position,
                                        Square square) {
    const auto odds = OddsOfAttack(position, {record.bytAnchorX, record.bytAnchorY}, square, false);
    if (!odds || AnyOfSide(position, square, OtherSide(position.bytTurn))) return odds;
    const bool empty = !AnyOfSide(position, square, position.bytTurn);
    return empty && odds->burns ? odds : std::nullopt;
}

// The people attack from the square beside the target, where others may stand with them.
std::optional<AttackOdds> OddsByStep(const Position& position, const MovingGroup& group,
                                     Square square) {
    const auto reach = ReachOf(position, group);
    const auto way = std::find_if(reach.begin(), reach.end(), [&](const ReachedSquare& reached) {
        return reached.square == square && reached.attack;
    });
    if (way == reach.end()) return std::nullopt;
    const Square beside = way->path[way->path.size() - 2];
    Position there = position;
    Place(there, group.people, beside);
    return OddsOfAttack(there, beside, square, true);
}

}  // namespace

std::optional<AttackOdds> OddsAhead(const GameRecord& record, Square square) {
    const Position position = PositionOf(record);
    if (record.blnAttackMode && record.blnAttackerChosen) {
        return OddsByCommand(record, position, square);
    }
    if (const auto group = GroupInMove(record)) return OddsByStep(position, *group, square);
    return std::nullopt;
}

std::string OddsAheadTold(const Game& game, Square square) {
    if (!game.view.odds || IsOwnMoveUnderWay(game.record) || square == Square{}) return {};
    try {
        const auto odds = OddsAhead(game.record, square);
        return odds ? TextOf(*odds) + "." : std::string();
    } catch (const EightBitOverflow&) {
        return {};
    }
}

}  // namespace qarn
