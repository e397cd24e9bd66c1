#include "ai/opponents/search.h"

#include <algorithm>

#include "ai/opponents/campaigns.h"
#include "rules/questions/odds.h"
#include "rules/questions/start.h"

namespace qarn {
namespace {

// What can come of a roll, with its chance in twenty-fifths.
struct Case {
    Dice dice;
    int chance = 0;
};
constexpr int allChances = dieSides * dieSides;

// How much what is won already counts beside what the evaluation hopes for. Without it a side that
// stands well rather waits than strikes, since the strike stays open to it.
constexpr float haste = 0.4F;
// For the same reason each turn counts a little by the strengths that it leaves, so that of two
// ways to win the same the sooner one is better.
constexpr float hasteEachTurn = 0.05F;

// Turns whose values differ by less are as good as each other. Among them counts, by this weight,
// what the side could gather and march for: a search of a few turns sees no use in either, and a
// side that stands well would shuffle for ever.
constexpr float asGood = 0.003F;
constexpr float campaignCounts = 0.3F;

constexpr Dice losing{.roll = dieSides};
constexpr Dice winningAtACost{.roll = 1, .secondRoll = rollThatCosts};

struct Cases {
    std::array<Case, 4> cases;
    std::size_t count = 0;

    void Add(Dice dice, int chance) {
        if (chance > 0) cases[count++] = {dice, chance};
    }
    const Case* begin() const { return cases.data(); }
    const Case* end() const { return begin() + count; }
};

// The likelier ways to lose first: they bound the rest soonest.
Cases CasesOf(const Attacked& attack) {
    const Odds odds = OddsOf(attack.attack, attack.defense);
    Cases cases;
    cases.Add(losing, odds.lose * dieSides);
    cases.Add({.roll = attack.threshold}, odds.tie * dieSides);
    cases.Add({.roll = 1, .secondRoll = 1}, odds.win * (dieSides - 1));
    cases.Add(winningAtACost, odds.win);
    return cases;
}

}  // namespace

Search::Search(const Position& position, const Weights& weights, Thinking& thinking)
    : distances_(DistancesFor(position)),
      weights_(weights),
      thinking_(thinking),
      root_(position, distances_) {}

// Worth to the side to move.
float Search::StaticValue(const Node& node) {
    ++thinking_.positions;
    const Features features = FeaturesOf(node.armies, node.Side(), distances_);
    const float value = Activate(features, weights_).value;
    return value + haste * (WorthOfBalance(features[balanceFeature]) - value);
}

// What a node is worth to a side, which need not be the one to move in it. `valueOf` gives the
// value of a node to the side that is.
template <typename ValueOf>
float Search::WorthTo(std::uint8_t side, const Node& node, Window window, const ValueOf& valueOf) {
    if (node.winner != 0) return node.winner == side ? 1.0F : 0.0F;
    if (node.Side() == side) return valueOf(node, window);
    return 1 - valueOf(node, Window{1 - window.high, 1 - window.low});
}

// Whom the attackers had best lose: the one without whom they stand best at once.
std::uint8_t Search::ChooseCasualty(const Node& node, Turn turn, Dice dice) {
    const auto standing = [&](const Node& after, Window) { return StaticValue(after); };
    const Square from = turn.kind == PlanKind::March ? turn.before : turn.start;
    const PeopleSet attackers = from == turn.start ? ListedOn(node.position, from) : turn.people;
    float best = -1;
    std::uint8_t chosen = 0;
    for (const std::uint8_t i : CharactersOf(node.position, attackers)) {
        turn.casualty = i;
        Node after = node;
        Play(after, turn, dice, distances_);
        const float value = WorthTo(node.Side(), after, {}, standing);
        if (value <= best) continue;
        best = value;
        chosen = i;
    }
    return chosen;
}

// The expected value of a turn to the side that takes it, over all that the dice can do. Sets the
// turn's casualty.
template <typename ValueOf>
float Search::Expect(const Node& node, Turn& turn, Window window, const ValueOf& valueOf) {
    Node sure = node;
    const std::optional<Attacked> attack = Play(sure, turn, {}, distances_);
    if (!attack || !attack->roll) return WorthTo(node.Side(), sure, window, valueOf);

    const Cases cases = CasesOf(*attack);
    const bool canLose = attack->threshold < dieSides;
    turn.casualty = ChooseCasualty(node, turn, canLose ? losing : winningAtACost);
    float sum = 0;
    int left = allChances;
    for (const Case& one : cases) {
        left -= one.chance;
        const auto chance = static_cast<float>(one.chance) / allChances;
        const auto rest = static_cast<float>(left) / allChances;
        const Window within{std::max(0.0F, (window.low - sum - rest) / chance),
                            std::min(1.0F, (window.high - sum) / chance)};
        Node after = node;
        Play(after, turn, one.dice, distances_);
        sum += chance * WorthTo(node.Side(), after, within, valueOf);
        if (sum + rest <= window.low) return sum + rest;
        if (sum >= window.high) return sum;
    }
    return sum;
}

std::vector<RatedTurn> Search::RateTurns(const Node& node) {
    std::vector<Turn> turns;
    ListTurns(node.position, turns);
    std::vector<RatedTurn> rated;
    rated.reserve(turns.size());
    for (Turn& turn : turns) {
        const float value =
            Expect(node, turn, {}, [&](const Node& after, Window) { return StaticValue(after); });
        rated.push_back({turn, value});
    }
    SortByValue(rated);
    return rated;
}

// What a node is worth to the side to move when it takes its best turn, one ply ahead.
float Search::BestReply(const Node& node, Window window) {
    const auto standing = [&](const Node& after, Window) { return StaticValue(after); };
    replies_.clear();
    ListTurns(node.position, replies_);
    const auto known = std::find(replies_.begin(), replies_.end(), refutation_);
    if (known != replies_.end()) std::iter_swap(replies_.begin(), known);
    float best = 0;
    for (const Turn& listed : replies_) {
        Turn turn = listed;
        const float value = Expect(node, turn, {std::max(best, window.low), window.high}, standing);
        if (value <= best) continue;
        best = value;
        refutation_ = listed;
        if (best >= window.high) break;
    }
    return best;
}

// What a node is worth to the side to move when both sides take so many turns more.
float Search::Value(const Node& node, int plies, Window window) {
    if (plies == 0) return StaticValue(node);
    const float now = hasteEachTurn * WorthOfBalance(BalanceOf(node.armies, node.Side()));
    constexpr float then = 1 - hasteEachTurn;
    const Window later{(window.low - now) / then, (window.high - now) / then};
    return now + then * LikelyTurn(node, plies, later);
}

// The same when it may take its best turn or, as the opponent is held to do at times, pass. A
// search that never hopes for that gives up whatever a watchful enemy could evade, and goes after
// nobody.
float Search::LikelyTurn(const Node& node, int plies, Window window) {
    if (node.Side() == root_.Side()) return BestTurn(node, plies, window);
    Turn pass;
    const auto then = [&](const Node& after, Window w) { return Value(after, plies - 1, w); };
    const float passed = limits_.passes * Expect(node, pass, {}, then);
    const float rest = 1 - limits_.passes;
    const Window answered{(window.low - passed) / rest, (window.high - passed) / rest};
    return passed + rest * BestTurn(node, plies, answered);
}

float Search::BestTurn(const Node& node, int plies, Window window) {
    if (plies == 1) return BestReply(node, window);
    std::vector<RatedTurn> turns = RateTurns(node);
    KeepBest(turns, limits_.replies, limits_.repliesAlike);
    float best = 0;
    for (RatedTurn& one : turns) {
        const float value = Expect(
            node, one.turn, {std::max(best, window.low), window.high},
            [&](const Node& after, Window within) { return Value(after, plies - 1, within); });
        best = std::max(best, value);
        if (best >= window.high || IsOver()) break;
    }
    return best;
}

bool Search::IsOver() const {
    return thinking_.positions >= limits_.positions || thinking_.decideNow.stop_requested();
}

bool Search::IsStronger() const { return BalanceOf(root_.armies, root_.Side()) > 0; }

// How much a turn brings on. A fight is what a campaign is for, and counts as the one before it.
float Search::Pressing(const Turn& turn) const {
    if (!limits_.pressesAlways && !IsStronger()) return 0;
    Node after = root_;
    const std::optional<Attacked> attack = Play(after, turn, {}, distances_);
    const Node& seen = attack && attack->roll ? root_ : after;
    return campaignCounts * CampaignOf(seen.armies, root_.Side(), distances_);
}

// What a turn is worth at the root; a bound where that is less than so much. Lines that end with
// one's own turn flatter, since nobody answers it, and who has most to lose does not rely on them.
float Search::RootValue(Turn& turn, float atLeast) {
    const auto ahead = [&](int plies, float low) {
        return Expect(root_, turn, {std::max(0.0F, low), 1},
                      [&](const Node& after, Window w) { return Value(after, plies - 1, w); });
    };
    if (!limits_.waryWhenStronger || !IsStronger()) return ahead(limits_.plies, atLeast);
    const float answered = ahead(limits_.plies - 1, 0);
    return (answered + ahead(limits_.plies, 2 * atLeast - answered)) / 2;
}

Turn Search::Best(const SearchLimits& limits) {
    limits_ = limits;
    std::vector<RatedTurn> turns = RateTurns();
    for (RatedTurn& one : turns) one.value += Pressing(one.turn);
    SortByValue(turns);
    KeepBest(turns, limits.turns, limits.turnsAlike);

    std::vector<RatedTurn> searched;
    float most = 0;
    for (RatedTurn& one : turns) {
        one.value = RootValue(one.turn, most - asGood);
        if (IsOver()) break;  // this one was cut short
        most = std::max(most, one.value);
        searched.push_back(one);
    }
    if (searched.empty()) return turns.front().turn;
    std::erase_if(searched, [&](const RatedTurn& one) { return one.value <= most - asGood; });
    for (RatedTurn& one : searched) one.value += Pressing(one.turn);
    SortByValue(searched);
    return searched.front().turn;
}

}  // namespace qarn
