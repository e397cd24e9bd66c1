#include "ai/opponents/features.h"

#include <algorithm>
#include <cmath>
#include <tuple>

#include "rules/questions/odds.h"

namespace qarn {
namespace {

constexpr int longWay = 15;

// What a thing is worth that is so many turns away: each turn takes a fifth of it.
constexpr auto delays = [] {
    std::array<float, longWay + 1> table{};
    float left = 1;
    for (float& one : table) {
        one = left;
        left *= 0.8F;
    }
    return table;
}();

float Delayed(float worth, int turns) {
    if (turns >= neverThere) return 0;
    return worth * delays[static_cast<std::size_t>(std::min(turns, longWay))];
}

// How many of the five numbers of the die win.
int WinsOf(int attack, int defense) {
    return std::clamp(ThresholdOf(attack, defense) - 1, 0, dieSides);
}

// One side's features.
class SideView {
public:
    SideView(const Army& own, const Army& enemy, const Distances& distances, float* features)
        : own_(own), enemy_(enemy), distances_(distances), features_(features) {}

    void Write() {
        if (own_.Count() == 0) return;
        const Stack& best = BestOf(own_);
        WriteArmy(best);
        WritePlaces(best);
        if (enemy_.Count() == 0) return;
        WriteFights();
        WriteDangers();
    }

private:
    // The stacks come in no order, so that equals are told apart by where they stand.
    static const Stack& BestOf(const Army& army) {
        const auto rank = [](const Stack& stack) {
            return std::tuple(stack.attack, stack.defense, stack.square.X, stack.square.Y);
        };
        return *std::max_element(army.begin(), army.end(),
                                 [&](const Stack& a, const Stack& b) { return rank(a) < rank(b); });
    }

    static int BestFourOf(const Army& army) {
        int best = 0;
        for (std::size_t k = 0; k < army.Count(); ++k)
            best = std::max<int>(best, army.TeamOf(k).attack);
        return best;
    }

    void WriteArmy(const Stack& best) {
        for (const Stack& stack : own_) {
            const auto count = static_cast<float>(stack.count);
            features_[Characters] += count / 10;
            features_[StrengthLeft] += static_cast<float>(stack.strength) / 100;
            features_[Cover] += static_cast<float>(stack.cover) * count / 40;
            if (stack.count >= 4) features_[FullStacks] += 0.4F;
            if (stack.count == 1) features_[Loners] += 0.1F;
            if (stack.count == 2) features_[Pairs] += 0.2F;
            if (stack.hasBoat) features_[Sailors] += count / 10;
        }
        features_[Stacks] = static_cast<float>(own_.Count()) / 10;
        features_[BestStack] = static_cast<float>(best.attack) / 25;
        features_[BestStackDefense] = static_cast<float>(best.defense) / 25;
        features_[BestStackReach] = static_cast<float>(best.mobility) / 16;
        features_[BestStackFiller] = static_cast<float>(best.weakest) / 15;
        features_[BestFour] = static_cast<float>(BestFourOf(own_)) / 25;
    }

    int Turns(const Stack& from, Square to, int mobility) const {
        return TurnsTo(from, to, mobility, distances_);
    }

    void WritePlaces(const Stack& best) {
        for (const Stack& stack : own_) {
            const auto people = static_cast<float>(stack.count);
            const int turns = Turns(stack, best.square, stack.mobility);
            if (turns >= neverThere) {
                features_[Stranded] += people / 10;
            } else {
                features_[Gathered] += people / 10 * Delayed(1, turns);
            }
        }
    }

    void WriteFights() {
        float most = 0;
        float second = 0;
        for (const Stack& enemy : enemy_) {
            if (enemy.shared) continue;
            float now = 0;
            float next = 0;
            float later = 0;
            float pursuit = 0;
            float hunt = 0;
            std::size_t k = 0;
            for (const Stack& stack : own_) {
                const Team& team = own_.TeamOf(k++);
                if (const int wins = WinsOf(stack.attack, enemy.defense); wins > 0) {
                    const int turns = Turns(stack, enemy.square, stack.mobility);
                    const float worth = WorthOfStrike(stack.attack, stack.weakest, enemy);
                    if (turns <= 1) now = std::max(now, worth);
                    if (turns <= 2) next = std::max(next, worth);
                    if (turns <= 4) later = std::max(later, worth);
                    pursuit = std::max(pursuit, Delayed(static_cast<float>(wins), turns));
                }
                if (const int wins = WinsOf(team.attack, enemy.defense); wins > 0) {
                    const int turns = team.turns + Turns(stack, enemy.square, team.mobility);
                    hunt = std::max(hunt, Delayed(static_cast<float>(wins), turns));
                }
            }
            second = std::max(second, std::min(now, most));
            most = std::max(most, now);
            features_[Strikes] += now / 40;
            features_[StrikesNext] += next / 40;
            features_[StrikesLater] += later / 40;
            const float prey = static_cast<float>(enemy.strength) / (100 * dieSides);
            features_[Pursuit] += prey * pursuit;
            features_[Hunt] += prey * hunt;
            features_[HuntBest] = std::max(features_[HuntBest], 2 * prey * hunt);
        }
        features_[Strike] = most / 20;
        features_[SecondStrike] = second / 20;
    }

    void WriteDangers() {
        const int stack = BestOf(enemy_).attack;
        const int four = BestFourOf(enemy_);
        for (const Stack& own : own_) {
            const float share = static_cast<float>(own.strength) / (100 * dieSides);
            features_[OpenToStack] += share * static_cast<float>(WinsOf(stack, own.defense));
            const int wins = WinsOf(four, own.defense);
            features_[OpenToFour] += share * static_cast<float>(wins);
            if (wins == 0) features_[Safe] += share * dieSides;
        }
    }

    const Army& own_;
    const Army& enemy_;
    const Distances& distances_;
    float* features_;
};

}  // namespace

float WorthOfStrike(int attack, int weakest, const Stack& enemy) {
    const int threshold = ThresholdOf(attack, enemy.defense);
    const int wins = std::clamp(threshold - 1, 0, dieSides);
    const int loses = std::clamp(dieSides - threshold, 0, dieSides);
    constexpr auto fifth = 1.0F / dieSides;
    const float lost = static_cast<float>(loses) + static_cast<float>(wins) * fifth;
    return fifth * (static_cast<float>(wins * enemy.strength) - lost * static_cast<float>(weakest));
}

// With own and enemy strengths a and b the share is a / (a + b).
float BalanceOf(const Armies& armies, std::uint8_t side) {
    const auto a = static_cast<float>(armies.OfSide(side).Strength());
    const auto b = static_cast<float>(armies.OfSide(OtherSide(side)).Strength());
    return (a - b) / (a + b - std::abs(a - b) + 1);
}

Features FeaturesOf(const Armies& armies, std::uint8_t side, const Distances& distances) {
    const Army& own = armies.OfSide(side);
    const Army& enemy = armies.OfSide(OtherSide(side));
    Features features{};
    SideView(own, enemy, distances, features.data()).Write();
    SideView(enemy, own, distances, features.data() + featureCount).Write();
    features[balanceFeature] = BalanceOf(armies, side);
    return features;
}

}  // namespace qarn
