#include "console/self_play_command.h"

#include <iomanip>
#include <nlohmann/json.hpp>
#include <ostream>

#include "ai/self_play.h"
#include "console/progress_line.h"
#include "scenarios/catalogue.h"

namespace qarn {
namespace {

double PerGame(double total, const SelfPlayResult& result) {
    return total / static_cast<double>(result.games);
}

double MillisecondsPerGame(const SelfPlayResult& result) {
    return PerGame(std::chrono::duration<double, std::milli>(result.time).count(), result);
}

double TurnsPerGame(const SelfPlayResult& result) {
    return PerGame(static_cast<double>(result.turns), result);
}

SelfPlayResult Play(const SelfPlayOptions& options, int scenario, std::ostream* progress) {
    ProgressLine line(progress, NamesOfScenario(scenario).Code, options.games);
    return PlayItself(scenario, options.games, options.seed,
                      [&](long played) { line.Show(played); });
}

void PrintHead(std::ostream& out) {
    out << "Scenario      Games   Side 1 won   Side 2 won   Stalemates    Endless   Turns/game"
           "      ms/game\n";
}

void PrintRow(std::ostream& out, int scenario, const SelfPlayResult& result) {
    out << std::left << std::setw(8) << NamesOfScenario(scenario).Code << std::right
        << std::setw(11) << result.games << std::setw(13) << result.wins1 << std::setw(13)
        << result.wins2 << std::setw(13) << result.stalemates << std::setw(11) << result.endless
        << std::fixed << std::setprecision(2) << std::setw(13) << TurnsPerGame(result)
        << std::setprecision(4) << std::setw(13) << MillisecondsPerGame(result) << std::endl;
}

nlohmann::ordered_json ResultJson(int scenario, const SelfPlayResult& result) {
    return {{"scenario", NamesOfScenario(scenario).Code},
            {"games", result.games},
            {"wins1", result.wins1},
            {"wins2", result.wins2},
            {"stalemates", result.stalemates},
            {"endless", result.endless},
            {"turns", result.turns},
            {"turnsPerGame", TurnsPerGame(result)},
            {"msPerGame", MillisecondsPerGame(result)}};
}

}  // namespace

void RunSelfPlay(const SelfPlayOptions& options, std::ostream& out, std::ostream* progress) {
    nlohmann::ordered_json object{{"seed", options.seed},
                                  {"scenarios", nlohmann::ordered_json::array()}};
    if (!options.json) PrintHead(out);
    for (const int scenario : options.scenarios) {
        const SelfPlayResult result = Play(options, scenario, progress);
        if (options.json) {
            object["scenarios"].push_back(ResultJson(scenario, result));
        } else {
            PrintRow(out, scenario, result);
        }
    }
    if (options.json) out << object.dump() << std::endl;
}

}  // namespace qarn
