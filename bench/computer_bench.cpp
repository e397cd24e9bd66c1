// The computer opponent: how long it thinks in the positions that it meets when it plays against
// itself, how many of its turns go by in a second on one core, and whether its memory grows with
// the number of games.

#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <string>
#include <vector>

#include "ai/choosers.h"
#include "ai/opponents/evaluation.h"
#include "ai/opponents/node.h"
#include "ai/self_play.h"
#include "ai/starting_position.h"
#include "ai/turn_driver.h"
#include "rules/play_turn.h"
#include "scenarios/catalogue.h"

namespace qarn {
namespace {

using Microseconds = std::chrono::duration<double, std::micro>;

// The shortest of a few runs, so that what else the machine does is not counted.
double TimeOfChoice(const Game& position) {
    double shortest = 1e9;
    for (int run = 0; run < 5; ++run) {
        Game game = position;
        const auto start = std::chrono::steady_clock::now();
        tmrAI_Timer(game);
        const Microseconds time = std::chrono::steady_clock::now() - start;
        shortest = std::min(shortest, time.count());
    }
    return shortest;
}

void TimeChoicesOfGame(int scenario, std::uint64_t seed, std::vector<double>& times) {
    SelfPlayedGame played(scenario, seed);
    Game& game = played.CurrentGame();
    while (game.controls.tmrAI.Enabled && !game.blnEnded) {
        if (!game.record.Action.blnAIBusy) times.push_back(TimeOfChoice(game));
        Tick(game);
    }
}

// Time is that of the position in the middle.
void ChooseMoveInSelfPlay(benchmark::State& state) {
    std::vector<double> times;
    for (auto _ : state) {
        times.clear();
        for (int scenario = 1; scenario <= scenarioCount; ++scenario) {
            for (std::uint64_t seed = 1; seed <= 100; ++seed) {
                TimeChoicesOfGame(scenario, seed, times);
            }
        }
        std::sort(times.begin(), times.end());
        state.SetIterationTime(times[times.size() / 2] * 1e-6);
    }
    state.counters["positions"] = static_cast<double>(times.size());
    state.counters["median_us"] = times[times.size() / 2];
    state.counters["worst_us"] = times.back();
}

long PlayEveryScenario(long games, std::uint64_t seed) {
    long turns = 0;
    for (int scenario = 1; scenario <= scenarioCount; ++scenario) {
        turns += PlayItself(scenario, games, seed, [](long) {}).turns;
    }
    return turns;
}

void SelfPlay(benchmark::State& state) {
    double turns = 0;
    for (auto _ : state) turns += static_cast<double>(PlayEveryScenario(50, 1));
    state.counters["turns"] = benchmark::Counter(turns, benchmark::Counter::kIsRate);
}

// What an opponent takes to choose the first turn of either side.
void Choices(benchmark::State& state, const Opponent& opponent) {
    double positions = 0;
    double choices = 0;
    for (auto _ : state) {
        for (const std::uint8_t side : {std::uint8_t{1}, std::uint8_t{2}}) {
            Position start = StartOf(7);
            start.bytTurn = side;
            Thinking thinking;
            benchmark::DoNotOptimize(opponent.choose(start, 1, thinking));
            positions += static_cast<double>(thinking.positions);
            ++choices;
        }
    }
    state.counters["choices"] = benchmark::Counter(choices, benchmark::Counter::kIsRate);
    state.counters["positions"] = benchmark::Counter(positions, benchmark::Counter::kIsRate);
}

// How many turns a position is played forward by in a second: one stack goes to and fro.
void TurnsOfPosition(benchmark::State& state) {
    SelfPlayedGame played(7, 1);
    const Position start = PositionOf(played.CurrentGame().record);
    const Plan march{.kind = PlanKind::March,
                     .start = {8, 8},
                     .people = PeopleOn(start, {8, 8}),
                     .path = {{8, 7}, {8, 6}}};
    for (auto _ : state) {
        Position position = start;
        position.bytTurn = 1;
        benchmark::DoNotOptimize(PlayTurn(position, march, {}));
        benchmark::DoNotOptimize(position);
    }
    state.SetItemsProcessed(state.iterations());
}

// How many turns of a starting position the opponents play forward and evaluate in a second.
void TurnsOfSearch(benchmark::State& state) {
    Position start = StartOf(7);
    start.bytTurn = 1;
    const Distances& distances = DistancesFor(start);
    const Node node(start, distances);
    std::vector<Turn> turns;
    ListTurns(start, turns);
    for (auto _ : state) {
        for (const Turn& turn : turns) {
            Node after = node;
            Play(after, turn, {}, distances);
            const Features features = FeaturesOf(after.armies, after.Side(), distances);
            benchmark::DoNotOptimize(Activate(features, learnedWeights).value);
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(turns.size()));
}

long PeakMemory() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

// How much the peak of the memory grows from the 1,200th game to the 13,200th.
void MemoryOfSelfPlay(benchmark::State& state) {
    for (auto _ : state) {
        PlayEveryScenario(100, 1);
        const long before = PeakMemory();
        PlayEveryScenario(1000, 101);
        state.counters["growth_KiB"] = static_cast<double>(PeakMemory() - before);
    }
    state.counters["peak_KiB"] = static_cast<double>(PeakMemory());
}

BENCHMARK(ChooseMoveInSelfPlay)->UseManualTime()->Iterations(1)->Unit(benchmark::kMicrosecond);
BENCHMARK(TurnsOfPosition);
BENCHMARK(TurnsOfSearch);
BENCHMARK(SelfPlay)->Unit(benchmark::kMillisecond);
BENCHMARK(MemoryOfSelfPlay)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace

void AddChoicesOfAll() {
    for (const Opponent& opponent : Opponents()) {
        benchmark::RegisterBenchmark(("Choices/" + std::string(opponent.name)).c_str(), Choices,
                                     opponent)
            ->Unit(benchmark::kMillisecond);
    }
}

}  // namespace qarn

int main(int argc, char* argv[]) {
    benchmark::Initialize(&argc, argv);
    qarn::AddChoicesOfAll();
    benchmark::RunSpecifiedBenchmarks();
}
