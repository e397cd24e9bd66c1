#include "ai/opponents/search.h"

#include <algorithm>

#include "ai/opponents/turns.h"
#include "rules/play_turn.h"
#include "rules/questions/casualties.h"
#include "rules/questions/odds.h"
#include "rules/questions/start.h"

namespace qarn {
namespace {

bool IsBetter(const RatedTurn& a, const RatedTurn& b) { return a.value > b.value; }

// A turn whose outcome depends on the dice.
bool Rolls(const TurnOutcome& outcome) { return outcome.attack && outcome.attack->roll; }

}  // namespace

Search::Search(const Position& position, const Weights& weights, Thinking& thinking)
    : distances_(DistancesFor(position)), weights_(weights), thinking_(thinking) {}

// Worth to the side to move.
float Search::Value(const Position& position) {
    ++thinking_.positions;
    return Evaluate(position, distances_, weights_);
}

// The expected value of a turn to the side that takes it, over all that the dice can do. `valueOf`
// gives the value of a position to the side that is to move in it. Sets the plan's casualty.
template <typename ValueOf>
float Search::Expect(const Position& position, Plan& plan, ValueOf valueOf) {
    const std::uint8_t side = position.bytTurn;
    const auto valueAfter = [&](const Plan& turn, Dice dice) {
        Position after = position;
        const TurnOutcome outcome = PlayTurn(after, turn, dice);
        if (outcome.winner != 0) return outcome.winner == side ? 1.0F : 0.0F;
        const float value = valueOf(after);
        return after.bytTurn == side ? value : 1 - value;
    };

    Position after = position;
    const TurnOutcome sure = PlayTurn(after, plan, {});
    if (!Rolls(sure)) return valueAfter(plan, {});

    const Attacked& attack = *sure.attack;
    const Odds odds = OddsOf(attack.attack, attack.defense);
    float bestLoss = -1;
    const auto lossWorth = [&](Dice dice) {
        for (const std::uint8_t i : CharactersOf(position, ListedOn(position, plan.start))) {
            Plan variant = plan;
            variant.casualty = i;
            const float value = valueAfter(variant, dice);
            if (value > bestLoss) {
                bestLoss = value;
                plan.casualty = i;
            }
        }
    };
    float sum = 0;
    if (odds.lose > 0) {
        lossWorth({.roll = dieSides});
        sum += static_cast<float>(odds.lose) * bestLoss;
    }
    if (odds.tie > 0) {
        sum += static_cast<float>(odds.tie) * valueAfter(plan, {.roll = attack.threshold});
    }
    if (odds.win > 0) {
        const float won = valueAfter(plan, {.roll = 1, .secondRoll = 1});
        const float wonWithLoss = valueAfter(plan, {.roll = 1, .secondRoll = rollThatCosts});
        sum += static_cast<float>(odds.win) * (won * (dieSides - 1) + wonWithLoss) / dieSides;
    }
    return sum / dieSides;
}

std::vector<RatedTurn> Search::RateTurns(const Position& position) {
    std::vector<Plan> turns;
    ListTurns(position, turns);
    std::vector<RatedTurn> rated;
    rated.reserve(turns.size());
    for (Plan& plan : turns) {
        const float value =
            Expect(position, plan, [&](const Position& after) { return Value(after); });
        rated.push_back({plan, value});
    }
    std::stable_sort(rated.begin(), rated.end(), IsBetter);
    return rated;
}

// What a position is worth to the side to move when it takes its best turn.
float Search::ValueAfterReply(const Position& position, std::size_t followUps) {
    std::vector<RatedTurn> replies = RateTurns(position);
    if (followUps == 0) return replies.front().value;
    float best = 0;
    replies.resize(std::min(replies.size(), followUps));
    for (RatedTurn& reply : replies) {
        const float value = Expect(
            position, reply.plan, [&](const Position& after) { return ValueAfterReply(after, 0); });
        best = std::max(best, value);
    }
    return best;
}

RatedTurn Search::Best(const Position& position, const SearchWidth& width) {
    std::vector<RatedTurn> turns = RateTurns(position);
    if (width.replies == 0) return turns.front();
    turns.resize(std::min(turns.size(), width.replies));
    for (RatedTurn& turn : turns) {
        turn.value = Expect(position, turn.plan, [&](const Position& after) {
            return ValueAfterReply(after, width.followUps);
        });
    }
    return *std::max_element(
        turns.begin(), turns.end(),
        [](const RatedTurn& a, const RatedTurn& b) { return a.value < b.value; });
}

}  // namespace qarn
