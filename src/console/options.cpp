#include "console/options.h"

#include <array>
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

// What belongs to the series of games that opponents play among themselves.
struct SeriesArguments {
    std::optional<long> selfPlay;
    std::optional<std::array<std::string, 2>> match;
    std::optional<long> games;
    std::optional<std::string> scenario;
    std::optional<std::uint64_t> seed;
    std::optional<long> turns;
    bool sprt = false;
};

constexpr long mostGames = std::numeric_limits<long>::max();
constexpr std::uint64_t largestSeed = std::numeric_limits<std::uint64_t>::max();

// Gives false when the option is none of these.
bool TakeSeriesOption(const std::string& option, Arguments& rest, SeriesArguments& given) {
    if (option == "--selfplay") {
        given.selfPlay = ParseNumber<long>(rest.TakeValueOf(option), 1, mostGames);
    } else if (option == "--match") {
        const std::string first = rest.TakeValueOf(option);
        given.match = {first, rest.TakeValueOf(option)};
    } else if (option == "--games") {
        given.games = ParseNumber<long>(rest.TakeValueOf(option), 1, mostGames);
    } else if (option == "--scenario") {
        given.scenario = rest.TakeValueOf(option);
    } else if (option == "--seed") {
        given.seed = ParseNumber<std::uint64_t>(rest.TakeValueOf(option), 0, largestSeed);
    } else if (option == "--turns") {
        given.turns = ParseNumber<long>(rest.TakeValueOf(option), 1, mostGames);
    } else if (option == "--sprt") {
        given.sprt = true;
    } else {
        return false;
    }
    return true;
}

void RefuseStrayOptions(const SeriesArguments& given, const Options& options) {
    if (given.selfPlay && given.match) throw Refusal("Self-play and a match do not go together.");
    if (!given.match && (given.games || given.turns || given.sprt)) {
        throw Refusal("The options --games, --turns and --sprt go with --match.");
    }
    const bool series = given.selfPlay || given.match;
    if (!series && (given.scenario || given.seed)) {
        throw Refusal("The options --scenario and --seed go with --selfplay or --match.");
    }
    if (series && !options.file.empty()) {
        throw Refusal("Self-play and matches open no game file.");
    }
}

const Opponent* ParseOpponent(const std::string& name) {
    if (const Opponent* opponent = FindOpponent(name)) return opponent;
    std::string names;
    for (const Opponent& one : Opponents()) {
        names += (names.empty() ? "" : ", ") + std::string(one.name);
    }
    throw Refusal("There is no opponent \"" + name + "\". There are: " + names + ".");
}

void SetSeries(const SeriesArguments& given, Options& options) {
    RefuseStrayOptions(given, options);
    const std::string scenario = given.scenario.value_or("all");
    if (given.selfPlay) {
        options.selfPlay = SelfPlayOptions{.games = *given.selfPlay,
                                           .scenarios = ParseScenarios(scenario),
                                           .seed = given.seed.value_or(1),
                                           .json = options.json};
    }
    if (given.match) {
        const MatchOptions usual;
        options.match = MatchOptions{.a = ParseOpponent((*given.match)[0]),
                                     .b = ParseOpponent((*given.match)[1]),
                                     .seeds = given.games.value_or(usual.seeds),
                                     .scenarios = ParseScenarios(scenario),
                                     .seed = given.seed.value_or(usual.seed),
                                     .mostTurns = given.turns.value_or(usual.mostTurns),
                                     .sprt = given.sprt,
                                     .json = options.json};
    }
}

}  // namespace

Options ParseOptions(std::span<char* const> arguments) {
    Options options;
    SeriesArguments series;
    for (Arguments rest(arguments); !rest.Empty();) {
        const std::string argument = rest.Take();
        if (argument == "--help") {
            options.help = true;
        } else if (argument == "--version") {
            options.version = true;
        } else if (argument == "--json") {
            options.json = true;
        } else if (TakeSeriesOption(argument, rest, series)) {
            continue;
        } else if (argument.starts_with("--")) {
            throw Refusal("There is no option " + argument + ".");
        } else if (!options.file.empty()) {
            throw Refusal("Only one game file can be opened.");
        } else {
            options.file = argument;
        }
    }
    SetSeries(series, options);
    return options;
}

}  // namespace qarn
