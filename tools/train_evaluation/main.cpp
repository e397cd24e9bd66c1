// Learns the weights of the opponents' evaluation by self-play, and writes them as the header that
// the program is built with:
//   train_evaluation GAMES SEED WEIGHTS.h [STATE]
// STATE holds how far it has come; when it is there, it goes on from it, until GAMES have been
// played in all. The same games and seed give the same weights, however many cores there are; when
// it was stopped between, it has forgotten the games that it was still learning from, and the
// weights come out a little different.

#include <cstdlib>
#include <deque>
#include <fstream>
#include <future>
#include <iomanip>
#include <iostream>
#include <string>
#include <thread>

#include "core/random_numbers.h"
#include "scenarios/catalogue.h"
#include "train_evaluation/learner.h"

namespace qarn {
namespace {

constexpr long gamesOfAScenario = 8;
constexpr long gamesARound = gamesOfAScenario * scenarioCount;
constexpr std::size_t roundsRemembered = 15;
constexpr std::size_t lessonsARound = 100000;

using Lessons = std::vector<Lesson>;

// The games of a round, played on all cores, in their order.
Lessons PlayRound(long round, std::uint64_t seed, const Weights& weights) {
    const auto workers = static_cast<long>(std::max(1U, std::thread::hardware_concurrency()));
    std::vector<Lessons> games(static_cast<std::size_t>(gamesARound));
    std::vector<std::future<void>> done;
    for (long worker = 0; worker < workers; ++worker) {
        done.push_back(std::async(std::launch::async, [&, worker] {
            for (long game = worker; game < gamesARound; game += workers) {
                const int scenario = 1 + static_cast<int>(game / gamesOfAScenario);
                const auto number = static_cast<std::uint64_t>(round * gamesARound + game);
                games[static_cast<std::size_t>(game)] =
                    PlayPracticeGame(scenario, (seed << 32) + number, weights);
            }
        }));
    }
    for (std::future<void>& one : done) one.get();
    Lessons lessons;
    for (const Lessons& game : games) lessons.insert(lessons.end(), game.begin(), game.end());
    return lessons;
}

float RateOf(long round, long rounds) {
    constexpr float first = 0.002F;
    constexpr float last = 0.0002F;
    const float way = static_cast<float>(round) / static_cast<float>(rounds);
    return first + (last - first) * way;
}

// Some of the lessons of the last rounds, drawn from the round's number.
std::vector<const Lesson*> Drawn(const std::deque<Lessons>& rounds, long round) {
    std::vector<const Lesson*> all;
    for (const Lessons& lessons : rounds) {
        for (const Lesson& one : lessons) all.push_back(&one);
    }
    UniformGenerator chance;
    chance.Seed(static_cast<std::uint64_t>(round));
    std::vector<const Lesson*> drawn(lessonsARound);
    for (const Lesson*& one : drawn) {
        one = all[static_cast<std::size_t>(chance.Next() * static_cast<double>(all.size()))];
    }
    return drawn;
}

void WriteNumbers(std::ostream& out, const auto& numbers) {
    out << '{';
    for (const float number : numbers) out << number << "F, ";
    out << "},\n";
}

void WriteHeader(const std::string& path, const Weights& weights, long games, std::uint64_t seed) {
    std::ofstream out(path);
    out << "#pragma once\n\n// Learned by: train_evaluation " << games << ' ' << seed
        << " weights.h; do not edit.\n\n"
           "#include \"ai/opponents/evaluation.h\"\n\nnamespace qarn {\n\n"
           "// clang-format off\nconst Weights learnedWeights{\n.toHidden = {{\n"
        << std::fixed << std::setprecision(5);
    for (const auto& row : weights.toHidden) WriteNumbers(out, row);
    out << "}},\n.hiddenBias = ";
    WriteNumbers(out, weights.hiddenBias);
    out << ".fromHidden = ";
    WriteNumbers(out, weights.fromHidden);
    out << ".past = ";
    WriteNumbers(out, weights.past);
    out << ".bias = " << weights.bias << "F};\n// clang-format on\n\n}  // namespace qarn\n";
}

void Train(long games, std::uint64_t seed, const std::string& header, const std::string& path) {
    Learner learner(seed);
    std::deque<Lessons> memory;
    long round = 0;
    if (std::ifstream state(path); !path.empty() && state) {
        state >> round;
        learner.Read(state);
    }
    const long rounds = games / gamesARound;
    for (; round < rounds; ++round) {
        memory.push_back(PlayRound(round, seed, learner.Now()));
        if (memory.size() > roundsRemembered) memory.pop_front();
        const float entropy = learner.Learn(Drawn(memory, round), RateOf(round, rounds));
        std::cout << (round + 1) * gamesARound << " games, " << memory.back().size()
                  << " positions, cross entropy " << entropy << std::endl;
        WriteHeader(header, learner.Now(), (round + 1) * gamesARound, seed);
        if (path.empty()) continue;
        std::ofstream state(path);
        state << round + 1 << '\n';
        learner.Write(state);
    }
}

}  // namespace
}  // namespace qarn

int main(int argc, char** argv) {
    if (argc < 4 || argc > 5) {
        std::cerr << "Usage: train_evaluation GAMES SEED WEIGHTS.h [STATE]\n";
        return 2;
    }
    qarn::Train(std::atol(argv[1]), static_cast<std::uint64_t>(std::atoll(argv[2])), argv[3],
                argc > 4 ? argv[4] : "");
}
