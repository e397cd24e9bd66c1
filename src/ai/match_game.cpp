#include "ai/match_game.h"

#include "core/random_numbers.h"
#include "rules/play_turn.h"
#include "rules/questions/odds.h"
#include "rules/questions/turn.h"

namespace qarn {
namespace {

// The luck of a game, and beside it the seeds of the choosers, who must not foresee it.
class Chance {
public:
    explicit Chance(std::uint64_t seed) {
        constexpr std::uint64_t otherSequence = 0x9E3779B97F4A7C15;
        luck_.Seed(seed);
        seeds_.Seed(seed ^ otherSequence);
    }

    std::uint8_t FirstSide() { return static_cast<std::uint8_t>(1 + Below(2)); }

    Dice Throw() {
        Dice dice;
        dice.roll = 1 + Below(dieSides);
        dice.secondRoll = 1 + Below(dieSides);
        return dice;
    }

    std::uint64_t ChooserSeed() { return static_cast<std::uint64_t>(seeds_.Next() * 0x1.0p53); }

private:
    int Below(int bound) { return static_cast<int>(luck_.Next() * bound); }

    UniformGenerator luck_;
    UniformGenerator seeds_;
};

// What the chooser of the side to move does, as far as the rules let it.
Plan Choose(const Position& position, Chooser choose, std::uint64_t seed, PlayerRecord& player) {
    const auto start = std::chrono::steady_clock::now();
    Thinking thinking;
    const Plan plan = choose(position, seed, thinking).value_or(Plan{});
    player.times.Add(std::chrono::steady_clock::now() - start, thinking.positions);
    const Plan allowed = AllowedPart(position, plan);
    if (allowed != plan) ++player.refused;
    return allowed;
}

void CountStrengths(const Position& position, MatchGame& game) {
    for (const Group& group : position.People) {
        if (OnBoard(group)) game.players[group.Side].strengthLeft += group.Attack + group.Defense;
    }
}

}  // namespace

double MatchGame::Score(std::uint8_t side) const {
    if (winner == 0) return 0.5;
    return winner == side ? 1 : 0;
}

double MatchGame::JudgedScore(std::uint8_t side) const {
    const int own = players.at(side).strengthLeft;
    const int others = players.at(OtherSide(side)).strengthLeft;
    if (winner != 0 || own == others) return Score(side);
    return own > others ? 1 : 0;
}

MatchGame PlayMatchGame(Position position, const std::array<Chooser, 3>& choosers,
                        std::uint64_t seed, long mostTurns) {
    MatchGame game;
    Chance chance(seed);
    position.bytTurn = chance.FirstSide();
    while (game.winner == 0 && game.turns < mostTurns) {
        const std::uint8_t side = position.bytTurn;
        const Plan plan =
            Choose(position, choosers[side], chance.ChooserSeed(), game.players[side]);
        game.winner = PlayTurn(position, plan, chance.Throw()).winner;
        ++game.turns;
    }
    CountStrengths(position, game);
    return game;
}

}  // namespace qarn
