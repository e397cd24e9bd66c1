// Learns the weights of the opponents' evaluation by self-play, and writes them as the header that
// the program is built with:
//   train_evaluation SECONDS SEED WEIGHTS.h [STATE]
// STATE holds how far it has come; when it is there, it goes on from it. The method is that of the
// backgammon programs: temporal differences with eligibility traces (Tesauro, "Temporal difference
// learning and TD-Gammon", 1995), both sides taking the turn that the evaluation rates best, or now
// and then any.

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <optional>
#include <string>

#include "ai/opponents/search.h"
#include "ai/starting_position.h"
#include "core/random_numbers.h"
#include "rules/play_turn.h"
#include "scenarios/catalogue.h"

namespace qarn {
namespace {

constexpr int mostTurnsOfAGame = 160;
constexpr float traceDecay = 0.7F;
constexpr double explores = 0.05;

struct State {
    Weights weights = learnedWeights;
    long games = 0;
    std::uint64_t seed = 1;
};

class Trainer {
public:
    explicit Trainer(const State& state) : state_(state) {
        chance_.Seed(state.seed + static_cast<std::uint64_t>(state.games));
    }

    const State& Now() const { return state_; }

    void PlayGame() {
        Position position = StartOf(1 + static_cast<int>(state_.games % scenarioCount));
        position.bytTurn = chance_.Next() < 0.5 ? 1 : 2;
        rate_ = 0.05F / (1 + static_cast<float>(state_.games) / 3000);
        traces_ = {};
        std::optional<float> before;  // as side 1 sees it
        for (int turn = 0; turn < mostTurnsOfAGame; ++turn) {
            const Distances& distances = DistancesFor(position);
            const float seen = Evaluate(position, distances, state_.weights);
            const float now = position.bytTurn == 1 ? seen : 1 - seen;
            if (before) Learn(now - *before);
            Remember(position, distances, seen);
            before = now;

            const Plan plan = Choose(position);
            const Dice dice{Die(), Die()};
            const TurnOutcome outcome = PlayTurn(position, plan, dice);
            if (outcome.winner != 0) {
                Learn((outcome.winner == 1 ? 1.0F : 0.0F) - *before);
                break;
            }
        }
        ++state_.games;
    }

private:
    int Die() { return static_cast<int>(chance_.Next() * 5) + 1; }

    Plan Choose(const Position& position) {
        Thinking thinking;
        Search search(position, state_.weights, thinking);
        const std::vector<RatedTurn> turns = search.RateTurns(position);
        if (chance_.Next() >= explores) return turns.front().plan;
        return turns[static_cast<std::size_t>(chance_.Next() * static_cast<double>(turns.size()))]
            .plan;
    }

    // The trace of what side 1's chances depend on. Seen by side 2 they are 1 - the value.
    void Remember(const Position& position, const Distances& distances, float seen) {
        const Features features = FeaturesOf(position, distances);
        const float slope = seen * (1 - seen) * (position.bytTurn == 1 ? 1.0F : -1.0F);
        for (std::size_t i = 0; i < features.size(); ++i) {
            traces_.features[i] = traceDecay * traces_.features[i] + slope * features[i];
        }
        traces_.move = traceDecay * traces_.move + slope;
    }

    void Learn(float difference) {
        Weights& weights = state_.weights;
        for (std::size_t i = 0; i < weights.features.size(); ++i) {
            weights.features[i] += rate_ * difference * traces_.features[i];
        }
        weights.move += rate_ * difference * traces_.move;
    }

    State state_;
    UniformGenerator chance_;
    Weights traces_;
    float rate_ = 0;
};

State ReadState(const std::string& path, std::uint64_t seed) {
    State state;
    state.seed = seed;
    std::ifstream file(path);
    if (!file) return state;
    file >> state.games >> state.weights.move;
    for (float& weight : state.weights.features) file >> weight;
    if (!file) throw std::runtime_error("The state can not be read: " + path);
    return state;
}

void WriteState(const std::string& path, const State& state) {
    std::ofstream file(path);
    file << std::setprecision(9) << state.games << ' ' << state.weights.move << '\n';
    for (const float weight : state.weights.features) file << weight << '\n';
}

void WriteHeader(const std::string& path, const State& state) {
    std::ofstream file(path);
    file << "#pragma once\n\n"
            "// Learned by tools/train_evaluation in "
         << state.games << " games with seed " << state.seed
         << "; do not edit.\n\n#include \"ai/opponents/features.h\"\n\nnamespace qarn {\n\n"
            "inline constexpr Features learnedFeatureWeights{\n"
         << std::fixed << std::setprecision(4);
    for (std::size_t i = 0; i < state.weights.features.size(); ++i) {
        if (i % featureCount == 0) {
            file << (i == 0 ? "    // the side to move\n" : "    // the other side\n");
        }
        file << "    " << state.weights.features[i] << "F,\n";
    }
    file << "};\ninline constexpr float learnedMoveWeight = " << state.weights.move
         << "F;\n\n}  // namespace qarn\n";
}

void Train(double seconds, std::uint64_t seed, const std::string& header, const std::string& path) {
    Trainer trainer(ReadState(path, seed));
    const auto start = std::chrono::steady_clock::now();
    const auto isOver = [&] {
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count() >=
               seconds;
    };
    while (!isOver()) {
        for (int game = 0; game < scenarioCount; ++game) trainer.PlayGame();
        if (!path.empty()) WriteState(path, trainer.Now());
    }
    WriteHeader(header, trainer.Now());
    std::cout << trainer.Now().games << " games\n";
}

}  // namespace
}  // namespace qarn

int main(int argc, char** argv) {
    if (argc < 4 || argc > 5) {
        std::cerr << "Usage: train_evaluation SECONDS SEED WEIGHTS.h [STATE]\n";
        return 2;
    }
    qarn::Train(std::atof(argv[1]), static_cast<std::uint64_t>(std::atoll(argv[2])), argv[3],
                argc > 4 ? argv[4] : "");
}
