#include "train_evaluation/practice_game.h"

#include <algorithm>
#include <cmath>

#include "ai/classic/classic_choice.h"
#include "ai/opponents/search.h"
#include "ai/starting_position.h"
#include "core/random_numbers.h"
#include "rules/questions/odds.h"
#include "rules/questions/turn.h"

namespace qarn {
namespace {

constexpr int mostTurns = 160;
constexpr int mostIdleTurns = 80;  // without a loss; then the game is held to be locked
constexpr float lambda = 0.8F;
constexpr float keepsATurn = 0.98F;  // of what is still to be won or lost: sooner is better
constexpr double explores = 0.02;
constexpr float temperature = 0.008F;
constexpr int mostScattered = 60;       // turns
constexpr double againstClassic = 0.4;  // of the games: one who stands still teaches to gather

struct Seen {
    Features features;
    std::uint8_t side;
    float value;     // to side 1
    float standing;  // what the strengths left are worth to side 1
};

std::vector<Lesson> LessonsOf(const std::vector<Seen>& game, float result) {
    std::vector<Lesson> lessons(game.size());
    float known = result;
    for (std::size_t k = game.size(); k-- > 0;) {
        const Seen& seen = game[k];
        lessons[k] = {seen.features, seen.side == 1 ? known : 1 - known};
        known = lambda * known + (1 - lambda) * seen.value;
        known = seen.standing + keepsATurn * (known - seen.standing);
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
        if (chance_.Next() < againstClassic) classicSide_ = chance_.Next() < 0.5 ? 1 : 2;
    }

    std::vector<Lesson> Play() {
        for (int turn = 0, idle = 0; turn < mostTurns && idle < mostIdleTurns; ++turn, ++idle) {
            See();
            const TurnOutcome outcome = PlayTurn(position_, Choose(), {Die(), Die()});
            if (outcome.winner != 0) return LessonsOf(seen_, outcome.winner == 1 ? 1.0F : 0.0F);
            if (!outcome.lost.Empty()) idle = 0;
        }
        const Armies armies(position_, DistancesFor(position_));
        return LessonsOf(seen_, WorthOfBalance(BalanceOf(armies, 1)));
    }

private:
    int Die() { return static_cast<int>(chance_.Next() * dieSides) + 1; }

    void See() {
        const Distances& distances = DistancesFor(position_);
        const Armies armies(position_, distances);
        const std::uint8_t side = position_.bytTurn;
        const Features features = FeaturesOf(armies, side, distances);
        const float value = Activate(features, weights_).value;
        seen_.push_back(
            {features, side, side == 1 ? value : 1 - value, WorthOfBalance(BalanceOf(armies, 1))});
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
        if (position_.bytTurn == classicSide_) {
            const std::optional<Plan> plan = ChooseClassicMove(position_, 0, thinking);
            return AllowedPart(position_, plan.value_or(Plan{}));
        }
        Search search(position_, weights_, thinking);
        const std::vector<RatedTurn> turns = search.RateTurns();
        const std::size_t which = chance_.Next() < explores ? Below(turns.size()) : AnyGood(turns);
        return PlanOf(position_, turns[which].turn);
    }

    Position position_;
    const Weights& weights_;
    UniformGenerator chance_;
    std::uint8_t classicSide_ = 0;  // 0: both learn
    std::vector<Seen> seen_;
};

}  // namespace

std::vector<Lesson> PlayPracticeGame(int scenario, std::uint64_t seed, const Weights& weights) {
    return PracticeGame(scenario, seed, weights).Play();
}

}  // namespace qarn
