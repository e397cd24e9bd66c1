#include "train_evaluation/practice_game.h"

#include <algorithm>
#include <cmath>

#include "ai/opponents/search.h"
#include "ai/starting_position.h"
#include "core/random_numbers.h"
#include "rules/questions/odds.h"

namespace qarn {
namespace {

constexpr int mostTurns = 160;
constexpr int mostIdleTurns = 80;  // without a loss; then the game is held to be locked
constexpr float lambda = 0.8F;
constexpr float keepsATurn = 0.98F;  // of what is still to be won or lost: sooner is better
constexpr double explores = 0.02;
constexpr float temperature = 0.004F;
constexpr int mostScattered = 60;  // turns

struct Seen {
    Features features;
    std::uint8_t side;
    float value;  // to side 1
    float share;  // of side 1 in the strengths left
};

int StrengthOfSide(const Position& position, std::uint8_t side) {
    int sum = 0;
    for (const Group& one : position.People) {
        if (OnBoard(one) && one.Side == side) sum += one.Attack + one.Defense;
    }
    return sum;
}

// The share of side 1.
float ShareOfStrength(const Position& position) {
    const auto first = static_cast<float>(StrengthOfSide(position, 1));
    return first / (first + static_cast<float>(StrengthOfSide(position, 2)));
}

std::vector<Lesson> LessonsOf(const std::vector<Seen>& game, float result) {
    std::vector<Lesson> lessons(game.size());
    float known = result;
    for (std::size_t k = game.size(); k-- > 0;) {
        const Seen& seen = game[k];
        lessons[k] = {seen.features, seen.side == 1 ? known : 1 - known};
        known = lambda * known + (1 - lambda) * seen.value;
        known = seen.share + keepsATurn * (known - seen.share);
    }
    return lessons;
}

class PracticeGame {
public:
    PracticeGame(int scenario, std::uint64_t seed, const Weights& weights)
        : position_(StartOf(scenario)), weights_(weights) {
        chance_.Seed(seed);
        position_.bytTurn = chance_.Next() < 0.5 ? 1 : 2;
        if (chance_.Next() < 0.5) Scatter();
    }

    std::vector<Lesson> Play() {
        for (int turn = 0, idle = 0; turn < mostTurns && idle < mostIdleTurns; ++turn, ++idle) {
            See();
            const TurnOutcome outcome = PlayTurn(position_, Choose(), {Die(), Die()});
            if (outcome.winner != 0) return LessonsOf(seen_, outcome.winner == 1 ? 1.0F : 0.0F);
            if (!outcome.lost.Empty()) idle = 0;
        }
        return LessonsOf(seen_, ShareOfStrength(position_));
    }

private:
    int Die() { return static_cast<int>(chance_.Next() * dieSides) + 1; }

    void See() {
        const Distances& distances = DistancesFor(position_);
        const Features features =
            FeaturesOf(Armies(position_, distances), position_.bytTurn, distances);
        const float value = Activate(features, weights_).value;
        seen_.push_back({features, position_.bytTurn, position_.bytTurn == 1 ? value : 1 - value,
                         ShareOfStrength(position_)});
    }

    // Both sides march about at random.
    void Scatter() {
        for (int left = static_cast<int>(chance_.Next() * mostScattered); left > 0; --left) {
            std::vector<Turn> turns;
            ListTurns(position_, turns);
            std::erase_if(turns, [](const Turn& turn) {
                return turn.attacks || turn.kind == PlanKind::Attack;
            });
            PlayTurn(position_, PlanOf(position_, turns[Below(turns.size())]), {});
        }
    }

    std::size_t Below(std::size_t bound) {
        return static_cast<std::size_t>(chance_.Next() * static_cast<double>(bound));
    }

    // One of the best, the likelier the better. (Boltzmann exploration.)
    std::size_t AnyGood(const std::vector<RatedTurn>& turns) {
        std::vector<float> sums;
        float sum = 0;
        for (const RatedTurn& one : turns) {
            if (one.value < turns.front().value - 4 * temperature) break;
            sum += std::exp((one.value - turns.front().value) / temperature);
            sums.push_back(sum);
        }
        const float drawn = static_cast<float>(chance_.Next()) * sum;
        const auto found = std::upper_bound(sums.begin(), sums.end() - 1, drawn);
        return static_cast<std::size_t>(found - sums.begin());
    }

    Plan Choose() {
        Thinking thinking;
        Search search(position_, weights_, thinking);
        const std::vector<RatedTurn> turns = search.RateTurns();
        const std::size_t which = chance_.Next() < explores ? Below(turns.size()) : AnyGood(turns);
        return PlanOf(position_, turns[which].turn);
    }

    Position position_;
    const Weights& weights_;
    UniformGenerator chance_;
    std::vector<Seen> seen_;
};

}  // namespace

std::vector<Lesson> PlayPracticeGame(int scenario, std::uint64_t seed, const Weights& weights) {
    return PracticeGame(scenario, seed, weights).Play();
}

}  // namespace qarn
