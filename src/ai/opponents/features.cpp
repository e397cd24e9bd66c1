#include "ai/opponents/features.h"

#include <algorithm>

#include "rules/questions/odds.h"

namespace qarn {
namespace {

constexpr std::size_t mostStacks = peopleCount;

// The characters of one side on one square.
struct Stack {
    Square square = {};
    PeopleSet people = {};
    int attack = 0;
    int defense = 0;  // the terrain beneath aside
    int cover = 0;    // what the terrain adds when it is stepped into
    int mobility = 0;
    int weakest = 0;  // attack and defense of the weakest
    Gait gait = Gait::OnFoot;

    int Strength() const { return attack + defense; }
};

struct Army {
    std::array<Stack, mostStacks> stacks;
    std::size_t count = 0;
    int characters = 0;
    int bestFour = 0;

    const Stack* begin() const { return stacks.data(); }
    const Stack* end() const { return begin() + count; }
    const Stack& Best() const {
        return *std::max_element(
            begin(), end(), [](const Stack& a, const Stack& b) { return a.attack < b.attack; });
    }
};

int CoverOf(const Position& position, Square square) {
    const std::uint8_t T = TerrainOf(position, square);
    return T == Swamp || T == Plain || T == Stream ? 0 : position.TerrainKinds[T].Defense;
}

Stack& StackOn(Army& army, const Position& position, Square square) {
    for (std::size_t k = 0; k < army.count; ++k) {
        if (army.stacks[k].square == square) return army.stacks[k];
    }
    Stack& stack = army.stacks[army.count++];
    stack = {.square = square};
    stack.cover = CoverOf(position, square);
    stack.weakest = 255;
    return stack;
}

Army ArmyOf(const Position& position, std::uint8_t side) {
    Army army;
    std::array<int, peopleCount> attacks{};
    for (std::uint8_t i = 1; i <= peopleCount; ++i) {
        const Group& one = position.People[i];
        if (one.Side != side || !OnBoard(one)) continue;
        attacks[static_cast<std::size_t>(army.characters++)] = one.Attack;
        Stack& stack = StackOn(army, position, SquareOf(one));
        stack.people.Add(i);
        stack.attack += one.Attack;
        stack.defense += one.Defense;
        stack.mobility += one.Mobility;
        stack.weakest = std::min(stack.weakest, one.Attack + one.Defense);
    }
    const auto best = attacks.begin() + std::min(4, army.characters);
    std::partial_sort(attacks.begin(), best, attacks.end(), std::greater<>());
    for (auto attack = attacks.begin(); attack != best; ++attack) army.bestFour += *attack;
    for (std::size_t k = 0; k < army.count; ++k) {
        Stack& stack = army.stacks[k];
        PeopleSet all = stack.people;
        for (std::uint8_t i = 1; i <= peopleCount; ++i) {
            const Group& one = position.People[i];
            if (IsTransport(one) && SquareOf(one) == stack.square) all.Add(i);
        }
        stack.gait = GaitOf(position, all);
    }
    return army;
}

// What an attack is worth, in strength: what falls, less what it costs.
float WorthOf(const Stack& own, const Stack& enemy) {
    const int threshold = ThresholdOf(own.attack, enemy.defense + enemy.cover);
    const int wins = std::clamp(threshold - 1, 0, dieSides);
    const int loses = std::clamp(dieSides - threshold, 0, dieSides);
    const auto fifth = 1.0F / dieSides;
    const float lost = static_cast<float>(loses) + static_cast<float>(wins) * fifth;
    return fifth *
           (static_cast<float>(wins * enemy.Strength()) - lost * static_cast<float>(own.weakest));
}

bool Beats(const Stack& own, const Stack& enemy) {
    return ThresholdOf(own.attack, enemy.defense + enemy.cover) >= 2;
}

class SideView {
public:
    SideView(const Army& own, const Army& enemy, const Distances& distances)
        : own_(own), enemy_(enemy), distances_(distances) {}

    void Write(float* features) const {
        if (own_.characters == 0) return;
        int strength = 0;
        for (const Stack& stack : own_) strength += stack.Strength();
        features[Characters] = static_cast<float>(own_.characters) / 10;
        features[StrengthLeft] = static_cast<float>(strength) / 100;
        features[BestStack] = static_cast<float>(own_.Best().attack) / 25;
        features[BestFour] = static_cast<float>(own_.bestFour) / 25;
        WriteStrikes(features);
        WritePlaces(features);
        if (enemy_.characters > 0) features[Pursuit] = Nearness();
    }

private:
    int Distance(const Stack& from, Square to) const {
        return distances_.Between(from.gait, from.square, to);
    }

    // The best attack on each enemy square, as far as so many times the mobility goes.
    float WorthOfBestStrike(const Stack& enemy, int turns) const {
        float best = 0;
        for (const Stack& stack : own_) {
            if (Distance(stack, enemy.square) > turns * stack.mobility) continue;
            best = std::max(best, WorthOf(stack, enemy));
        }
        return best;
    }

    void WriteStrikes(float* features) const {
        for (const Stack& enemy : enemy_) {
            const float now = WorthOfBestStrike(enemy, 1) / 20;
            features[Strikes] = std::max(features[Strikes], now);
            features[MoreStrikes] += now / 2;
            features[LaterStrikes] += WorthOfBestStrike(enemy, 2) / 40;
        }
    }

    bool IsSafe(const Stack& own) const {
        return std::none_of(enemy_.begin(), enemy_.end(),
                            [&](const Stack& enemy) { return Beats(enemy, own); });
    }

    void WritePlaces(float* features) const {
        const Stack& best = own_.Best();
        for (const Stack& stack : own_) {
            const auto people = static_cast<float>(stack.people.Count());
            features[Cover] += static_cast<float>(stack.cover) * people / 40;
            if (IsSafe(stack)) features[SafeStrength] += static_cast<float>(stack.Strength()) / 100;
            const int distance = Distance(stack, best.square);
            if (distance == Distances::unreachable) {
                features[Stranded] += people / 10;
            } else {
                features[Gathered] += people * NearnessOf(distance, stack.mobility) / 10;
            }
        }
    }

    // 1 beside it, less and less with each turn of the way.
    static float NearnessOf(int distance, int mobility) {
        return 1 / (1 + static_cast<float>(distance) / static_cast<float>(std::max(1, mobility)));
    }

    float Nearness() const {
        float nearest = 0;
        for (const Stack& stack : own_) {
            for (const Stack& enemy : enemy_) {
                const int distance = Distance(stack, enemy.square);
                if (distance == Distances::unreachable || !Beats(stack, enemy)) continue;
                nearest = std::max(nearest, NearnessOf(distance, stack.mobility));
            }
        }
        return nearest;
    }

    const Army& own_;
    const Army& enemy_;
    const Distances& distances_;
};

}  // namespace

Features FeaturesOf(const Position& position, const Distances& distances) {
    const Army own = ArmyOf(position, position.bytTurn);
    const Army enemy = ArmyOf(position, OtherSide(position.bytTurn));
    Features features{};
    SideView(own, enemy, distances).Write(features.data());
    SideView(enemy, own, distances).Write(features.data() + featureCount);
    return features;
}

}  // namespace qarn
