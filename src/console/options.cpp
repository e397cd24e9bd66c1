#include "console/options.h"

#include <limits>
#include <string_view>

#include "console/words.h"
#include "scenarios/catalogue.h"

namespace qarn {
namespace {

std::vector<int> AllScenarios() {
    std::vector<int> scenarios;
    for (int scenario = 1; scenario <= scenarioCount; ++scenario) scenarios.push_back(scenario);
    return scenarios;
}

std::vector<int> ParseScenarios(const std::string& code) {
    if (code == "all") return AllScenarios();
    const int scenario = ScenarioNumber(code);
    if (scenario == 0) throw Refusal("There is no scenario \"" + code + "\".");
    return {scenario};
}

// The arguments, taken one after the other.
class Arguments {
public:
    explicit Arguments(std::span<char* const> arguments) : rest_(arguments) {}

    bool Empty() const { return rest_.empty(); }

    std::string Take() {
        const std::string argument = rest_.front();
        rest_ = rest_.subspan(1);
        return argument;
    }

    std::string TakeValueOf(const std::string& option) {
        if (Empty()) throw Refusal("The option " + option + " needs a value.");
        return Take();
    }

private:
    std::span<char* const> rest_;
};

// What belongs to self-play alone.
struct SelfPlayArguments {
    std::optional<long> games;
    std::optional<std::string> scenario;
    std::optional<std::uint64_t> seed;
};

std::optional<SelfPlayOptions> SelfPlayOf(const SelfPlayArguments& given, const Options& options) {
    if (!given.games) {
        if (given.scenario || given.seed) {
            throw Refusal("The options --scenario and --seed go with --selfplay.");
        }
        return std::nullopt;
    }
    if (!options.file.empty()) throw Refusal("Self-play opens no game file.");
    return SelfPlayOptions{.games = *given.games,
                           .scenarios = ParseScenarios(given.scenario.value_or("all")),
                           .seed = given.seed.value_or(1),
                           .json = options.json};
}

}  // namespace

Options ParseOptions(std::span<char* const> arguments) {
    constexpr long mostGames = std::numeric_limits<long>::max();
    constexpr std::uint64_t largestSeed = std::numeric_limits<std::uint64_t>::max();
    Options options;
    SelfPlayArguments selfPlay;
    for (Arguments rest(arguments); !rest.Empty();) {
        const std::string argument = rest.Take();
        if (argument == "--json") {
            options.json = true;
        } else if (argument == "--selfplay") {
            selfPlay.games = ParseNumber<long>(rest.TakeValueOf(argument), 1, mostGames);
        } else if (argument == "--scenario") {
            selfPlay.scenario = rest.TakeValueOf(argument);
        } else if (argument == "--seed") {
            selfPlay.seed = ParseNumber<std::uint64_t>(rest.TakeValueOf(argument), 0, largestSeed);
        } else if (argument.starts_with("--")) {
            throw Refusal("There is no option " + argument + ".");
        } else if (!options.file.empty()) {
            throw Refusal("Only one game file can be opened.");
        } else {
            options.file = argument;
        }
    }
    options.selfPlay = SelfPlayOf(selfPlay, options);
    return options;
}

}  // namespace qarn
