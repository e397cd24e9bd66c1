#include "play/luck.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <random>

#include "core/position.h"
#include "play/journal_game.h"

namespace qarn {
namespace {

TEST(Luck, ChanceOfAtLeastIsThatOfAllWaysTogether) {
    const std::vector<double> chances{0.2, 0.4, 0, 0.6, 0.8, 1, 0.2, 0.6};
    for (int least = -1; least <= 9; ++least) {
        double expected = 0;
        for (unsigned way = 0; way < 1u << chances.size(); ++way) {
            double chance = 1;
            for (std::size_t i = 0; i < chances.size(); ++i) {
                chance *= (way >> i & 1u) != 0 ? chances[i] : 1 - chances[i];
            }
            if (std::popcount(way) >= least) expected += chance;
        }
        EXPECT_NEAR(ChanceOfAtLeast(chances, least), expected, 1e-15) << least;
    }
    // Small chances keep their digits.
    const std::vector<double> fifths(200, 0.2);
    EXPECT_NEAR(ChanceOfAtLeast(fifths, 200) / std::pow(0.2, 200), 1, 1e-12);
}

// A fight between units drawn at random, by the Attack command of either side.
class ManyFights {
public:
    void Fight() {
        Game& game = played_.game;
        game.record = record_;
        game.controls = controls_;
        game.record.bytTurn = static_cast<std::uint8_t>(1 + chance_() % 2);
        game.record.People[attacker_].Attack = static_cast<std::uint8_t>(1 + chance_() % 16);
        game.record.People[defender_].Defense = static_cast<std::uint8_t>(1 + chance_() % 10);
        played_.random.queued = {uniform_(chance_), uniform_(chance_)};
        played_.dialogs.queued = {Answer::Yes};
        played_.dialogs.boxes.clear();
        played_.DoAll("press cmdAttack; click 9 10; click 10 10");
    }

    Luck Outcome() const { return LuckOf(played_.journal.Told()); }

    // Of the wins of a side, by the odds of each of its fights.
    double Variance(std::uint8_t side) const {
        double variance = 0;
        for (const JournalEntry& entry : played_.journal.Told().entries) {
            const auto* fight = std::get_if<qarn::Fight>(&entry);
            if (fight == nullptr || fight->attack.side != side) continue;
            const int win = OddsOf(fight->attack.attack, fight->attack.defense).win;
            variance += win / 5.0 * (1 - win / 5.0);
        }
        return variance;
    }

private:
    JournalGame played_{"LS@9,10 ZA1@10,10 Q@5,5 Z@1,1"};
    const GameRecord record_ = played_.game.record;
    const Controls controls_ = played_.game.controls;
    const std::size_t attacker_ = PeopleOn(PositionOf(record_), {9, 10}).First();
    const std::size_t defender_ = PeopleOn(PositionOf(record_), {10, 10}).First();
    std::mt19937 chance_{7};
    std::uniform_real_distribution<double> uniform_{0, 1};
};

TEST(Luck, ManyFightsBringTheWinsThatAreExpected) {
    constexpr int count = 20'000;
    ManyFights fights;
    for (int fight = 0; fight < count; ++fight) fights.Fight();
    const Luck luck = fights.Outcome();
    EXPECT_EQ(luck.sides[1].attacks + luck.sides[2].attacks, count);
    double variance = 0;
    for (std::uint8_t side = 1; side <= 2; ++side) {
        const SideLuck& one = luck.sides[side];
        const double ofSide = fights.Variance(side);
        variance += ofSide;
        EXPECT_NEAR(one.wins, one.expected, 3 * std::sqrt(ofSide));
        EXPECT_GT(one.wins, count / 10);
        // So many fights are as good as normally distributed.
        const double farther = std::abs(one.Difference()) / std::sqrt(2 * ofSide);
        EXPECT_NEAR(one.chance, std::erfc(farther) / 2, 0.01);
        int rolls = 0;
        for (int number = 1; number <= dieSides; ++number) {
            rolls += one.rolls.at(static_cast<std::size_t>(number));
        }
        EXPECT_EQ(rolls, one.attacks + one.wins);
        EXPECT_NEAR(one.rolls[3], rolls / 5.0, 3 * std::sqrt(rolls * 0.16));
    }
    EXPECT_DOUBLE_EQ(luck.sum, luck.sides[1].Difference() - luck.sides[2].Difference());
    EXPECT_NEAR(luck.chance, std::erfc(std::abs(luck.sum) / std::sqrt(2 * variance)) / 2, 0.01);
}

}  // namespace
}  // namespace qarn
