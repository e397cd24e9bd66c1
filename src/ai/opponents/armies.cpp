#include "ai/opponents/armies.h"

#include <algorithm>

namespace qarn {
namespace {

constexpr int mostTogether = 4;

std::uint8_t Narrow(int value) { return static_cast<std::uint8_t>(std::min(value, 255)); }

int CoverOf(const Position& position, Square square) {
    const std::uint8_t T = TerrainOf(position, square);
    return T == Swamp || T == Plain || T == Stream ? 0 : position.TerrainKinds[T].Defense;
}

Stack StackOf(const Position& position, Square square, PeopleSet all, PeopleSet characters) {
    Stack stack{.square = square, .people = characters, .weakest = 255};
    int attack = 0;
    int defense = 0;
    int mobility = 0;
    int strength = 0;
    for (const std::uint8_t i : all) {
        const Group& one = position.People[i];
        attack += one.Attack;
        defense += one.Defense;
        mobility += one.Mobility;
        stack.hasBoat = stack.hasBoat || one.Kind == GroupKind::Boat;
        if (!characters.Contains(i)) continue;
        strength += one.Attack + one.Defense;
        stack.weakest = std::min(stack.weakest, Narrow(one.Attack + one.Defense));
    }
    const int cover = CoverOf(position, square);
    stack.count = Narrow(characters.Count());
    stack.attack = Narrow(attack);
    stack.defense = Narrow(defense + cover);
    stack.cover = Narrow(cover);
    stack.mobility = Narrow(std::max(1, mobility));
    stack.strength = Narrow(strength);
    stack.gait = GaitOf(position, all);
    return stack;
}

// Who could join a team, as one number that is the greater the better.
using Recruit = std::uint32_t;

Recruit RecruitOf(const Group& one, std::uint8_t entry, std::size_t stack) {
    return static_cast<Recruit>(one.Attack << 24 | (peopleCount - entry) << 16) |
           static_cast<Recruit>(stack << 8) | one.Mobility;
}

std::uint8_t AttackOf(Recruit one) { return static_cast<std::uint8_t>(one >> 24); }
std::uint8_t StackOf(Recruit one) { return static_cast<std::uint8_t>(one >> 8); }
std::uint8_t MobilityOf(Recruit one) { return static_cast<std::uint8_t>(one); }

}  // namespace

int Army::Strength() const {
    int sum = 0;
    for (const Stack& stack : *this) sum += stack.strength;
    return sum;
}

Armies::Armies(const Position& position, const Distances& distances) {
    for (std::uint8_t i = 1; i <= peopleCount; ++i) {
        const Group& one = position.People[i];
        if (one.Kind == GroupKind::Boat) boats_.Add(i);
        if (!OnBoard(one) || IsTransport(one)) continue;
        const Army& army = armies_[one.Side - 1u];
        const bool known = std::any_of(army.begin(), army.end(), [&](const Stack& stack) {
            return stack.square == SquareOf(one);
        });
        if (!known) Look(position, SquareOf(one));
    }
    FindBoats(position, distances);
    for (Army& army : armies_) FormTeams(position, distances, army);
}

void Armies::Refresh(const Position& position, const Distances& distances,
                     std::initializer_list<Square> squares) {
    for (const Square square : squares) Look(position, square);
    FindBoats(position, distances);
    for (Army& army : armies_) {
        if (army.changed_) FormTeams(position, distances, army);
    }
}

void Armies::Look(const Position& position, Square square) {
    std::array<PeopleSet, 3> bySide;
    PeopleSet all;
    for (std::uint8_t i = 1; i <= peopleCount; ++i) {
        const Group& one = position.People[i];
        if (SquareOf(one) != square) continue;
        all.Add(i);
        bySide[one.Side].Add(i);
        // Whoever is about may want this boat.
        if (one.Kind == GroupKind::Boat) armies_[0].changed_ = armies_[1].changed_ = true;
    }
    for (std::uint8_t side = 1; side <= 2; ++side) {
        Army& army = armies_[side - 1u];
        Stack* const end = army.stacks_.data() + army.count_;
        Stack* const known = std::find_if(
            army.stacks_.data(), end, [&](const Stack& stack) { return stack.square == square; });
        if (!bySide[side].Empty()) {
            *known = StackOf(position, square, all - bySide[OtherSide(side)], bySide[side]);
            known->shared = !bySide[OtherSide(side)].Empty();
            if (known->shared) known->attack = 0;
            if (known == end) ++army.count_;
            army.changed_ = true;
        } else if (known != end) {
            *known = *(end - 1);
            --army.count_;
            army.changed_ = true;
        }
    }
}

// A boat under an enemy is not for the taking.
void Armies::FindBoats(const Position& position, const Distances& distances) {
    for (std::size_t side = 0; side < armies_.size(); ++side) {
        Army& army = armies_[side];
        if (!army.changed_) continue;
        std::array<Square, peopleCount> boats;
        std::size_t count = 0;
        const Army& enemy = armies_[1 - side];
        for (const std::uint8_t i : boats_) {
            if (!OnBoard(position.People[i])) continue;
            const Square square = SquareOf(position.People[i]);
            const bool held = std::any_of(enemy.begin(), enemy.end(), [&](const Stack& stack) {
                return stack.square == square;
            });
            if (!held) boats[count++] = square;
        }
        for (std::size_t k = 0; k < army.count_; ++k) {
            Stack& stack = army.stacks_[k];
            stack.boat = {};
            if (stack.hasBoat || stack.gait == Gait::Flying) continue;
            int nearest = Distances::unreachable;
            for (std::size_t b = 0; b < count; ++b) {
                const int distance = distances.Between(stack.gait, stack.square, boats[b]);
                if (distance >= nearest) continue;
                nearest = distance;
                stack.boat = boats[b];
            }
            stack.fetching = Narrow(TurnsOf(nearest, stack.mobility));
        }
    }
}

// For each stack the four best attackers of those who have a way to it, the nearer of equals. Each
// further square that they come from takes its turns; so does the parting from those who are left
// out.
void Armies::FormTeams(const Position& position, const Distances& distances, Army& army) {
    std::array<Recruit, peopleCount> recruits;
    std::size_t count = 0;
    for (std::size_t k = 0; k < army.count_; ++k) {
        for (const std::uint8_t i : army.stacks_[k].people) {
            recruits[count++] = RecruitOf(position.People[i], i, k);
        }
    }
    std::sort(recruits.data(), recruits.data() + count, std::greater<>());
    for (std::size_t k = 0; k < army.count_; ++k) {
        const Stack& anchor = army.stacks_[k];
        Team team;
        int members = 0;
        int ofAnchor = 0;
        int turns = 0;
        std::uint32_t seen = 0;
        for (std::size_t r = 0; r < count && members < mostTogether; ++r) {
            const Recruit one = recruits[r];
            const std::uint8_t home = StackOf(one);
            if (home == k) {
                ++ofAnchor;
            } else {
                const std::uint32_t bit = std::uint32_t{1} << home;
                if ((seen & bit) == 0) {
                    const Stack& from = army.stacks_[home];
                    const int way = TurnsTo(from, anchor.square, from.mobility, distances);
                    if (way >= neverThere) continue;
                    turns += way;
                    seen |= bit;
                }
            }
            team.attack = Narrow(team.attack + AttackOf(one));
            team.mobility = Narrow(team.mobility + MobilityOf(one));
            ++members;
        }
        if (anchor.count - ofAnchor + members > mostTogether) ++turns;
        team.turns = Narrow(turns);
        army.teams_[k] = team;
    }
    army.changed_ = false;
}

}  // namespace qarn
