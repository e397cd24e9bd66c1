#include "ai/opponents/turns.h"

#include <algorithm>
#include <array>

#include "rules/questions/attack.h"
#include "rules/questions/occupancy.h"
#include "rules/questions/reach.h"
#include "rules/questions/start.h"

namespace qarn {
namespace {

// Above this many characters, which only a square of the start or a burning can hold, they go one
// by one or all together.
constexpr int mostCombined = 5;

MovingGroup GroupOf(const Position& position, Square start, PeopleSet people) {
    return {people, start, StrengthOf(position, people).Mobility};
}

// Lists the turns of one position.
class TurnList {
public:
    TurnList(const Position& position, std::vector<Turn>& turns)
        : position_(position), occupancy_(position), turns_(turns) {}

    void Fill() {
        for (const Square square : OwnSquares()) {
            if (AskStart(position_, square) == StartRefusal::None) AddMarchesFrom(square);
            if (!IsShared(square)) AddAttacksFrom(square);
        }
        turns_.push_back({.kind = PlanKind::Pass});
    }

private:
    PeopleSet Own() const { return occupancy_.OfSide(position_.bytTurn); }
    PeopleSet Enemies() const { return occupancy_.OfSide(OtherSide(position_.bytTurn)); }

    bool IsShared(Square square) const { return !(occupancy_.On(square) & Enemies()).Empty(); }

    std::vector<Square> OwnSquares() const {
        std::vector<Square> squares;
        for (const std::uint8_t i : Own()) {
            const Square square = SquareOf(position_.People[i]);
            if (std::find(squares.begin(), squares.end(), square) == squares.end()) {
                squares.push_back(square);
            }
        }
        return squares;
    }

    // ---- Marches ----

    void AddMarchesFrom(Square start) {
        const PeopleSet listed = ListedOn(position_, start);
        const std::vector<PeopleSet> companies = CompaniesOf(listed & Own());
        for (const PeopleSet transports : LoadsOf(listed)) {
            for (const PeopleSet company : companies) AddMarches(start, company | transports);
        }
    }

    // Those of a stack who can go together.
    static std::vector<PeopleSet> CompaniesOf(PeopleSet characters) {
        std::vector<PeopleSet> companies{PeopleSet()};
        for (const std::uint8_t i : characters) {
            const std::size_t count = characters.Count() > mostCombined ? 1 : companies.size();
            for (std::size_t k = 0; k < count; ++k)
                companies.push_back(companies[k] | PeopleSet{i});
        }
        if (characters.Count() > mostCombined) companies.push_back(characters);
        companies.erase(companies.begin());
        return companies;
    }

    // What they can take along: no boat, one or all, each with and without the cart.
    std::vector<PeopleSet> LoadsOf(PeopleSet listed) const {
        PeopleSet boats, cart;
        for (const std::uint8_t i : listed) {
            if (position_.People[i].Kind == GroupKind::Boat) boats.Add(i);
            if (position_.People[i].Kind == GroupKind::Cart) cart.Add(i);
        }
        std::vector<PeopleSet> loads{PeopleSet()};
        if (!boats.Empty()) loads.push_back({boats.First()});
        if (boats.Count() > 1) loads.push_back(boats);
        const std::size_t withoutCart = loads.size();
        for (std::size_t k = 0; k < withoutCart && !cart.Empty(); ++k) {
            loads.push_back(loads[k] | cart);
        }
        return loads;
    }

    void AddMarches(Square start, PeopleSet people) {
        const ReachMap map(position_, occupancy_, GroupOf(position_, start, people));
        for (const ReachMap::Way& way : map) {
            const bool useless =
                way.attack ? !CanAttack(way) : IsLoneBirdOnWater(position_, people, way.square);
            if (useless) continue;
            turns_.push_back({.kind = PlanKind::March,
                              .attacks = way.attack,
                              .start = start,
                              .before = way.before,
                              .end = way.square,
                              .people = people});
        }
    }

    bool CanAttack(const ReachMap::Way& way) const { return !IsShared(way.before); }

    // ---- Attacks by command ----

    void AddAttacksFrom(Square from) {
        constexpr std::array<std::array<int, 2>, 4> directions{{{0, -1}, {1, 0}, {0, 1}, {-1, 0}}};
        for (const auto& [dX, dY] : directions) {
            const int X = from.X + dX;
            const int Y = from.Y + dY;
            if (!IsOnBoard(X, Y)) continue;
            const Square to{static_cast<std::uint8_t>(X), static_cast<std::uint8_t>(Y)};
            if (!(occupancy_.On(to) & Own()).Empty()) continue;
            const AttackAnswer attack = AskAttack(position_, from, to, false);
            const bool worth = attack.burns || IsShared(to);
            if (attack.refusal != AttackRefusal::None || !worth) continue;
            turns_.push_back({.kind = PlanKind::Attack, .start = from, .end = to});
        }
    }

    const Position& position_;
    const Occupancy occupancy_;
    std::vector<Turn>& turns_;
};

}  // namespace

void ListTurns(const Position& position, std::vector<Turn>& turns) {
    TurnList(position, turns).Fill();
}

Plan PlanOf(const Position& position, const Turn& turn) {
    Plan plan{.kind = turn.kind, .start = turn.start, .casualty = turn.casualty};
    if (turn.kind == PlanKind::Attack) plan.target = turn.end;
    if (turn.kind == PlanKind::March) {
        plan.people = turn.people;
        plan.path =
            ReachMap(position, Occupancy(position), GroupOf(position, turn.start, turn.people))
                .PathTo(turn.end);
    }
    return plan;
}

}  // namespace qarn
