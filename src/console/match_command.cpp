#include "console/match_command.h"

#include <iomanip>
#include <nlohmann/json.hpp>
#include <ostream>
#include <sstream>

#include "ai/match.h"
#include "console/progress_line.h"
#include "scenarios/catalogue.h"

namespace qarn {
namespace {

using Json = nlohmann::ordered_json;

MatchResult Play(const MatchOptions& options, std::ostream* progress) {
    ProgressLine line(progress, "match", options.seeds);
    return PlayMatch({.choosers = {options.a->choose, options.b->choose},
                      .scenarios = options.scenarios,
                      .pairs = options.seeds,
                      .seed = options.seed,
                      .mostTurns = options.mostTurns,
                      .stopsEarly = options.sprt},
                     [&](long played) { line.Show(played); });
}

double TurnsPerGame(const MatchTally& tally) {
    return static_cast<double>(tally.turns) / static_cast<double>(tally.Games());
}

// ---- As a table ----

std::string ShareText(const Share& share) {
    std::ostringstream text;
    text << std::fixed << std::setprecision(1) << 100 * share.value << " (" << 100 * share.low
         << "-" << 100 * share.high << ")";
    return text.str();
}

std::string TimesText(const ChoiceTimes& times) {
    std::ostringstream text;
    text << std::fixed << std::setprecision(3) << times.Quantile(0.5).count() << "/"
         << times.Quantile(0.95).count() << "/" << times.Quantile(1).count();
    return text.str();
}

std::string SpeedText(const ChoiceTimes& times) {
    std::ostringstream text;
    text << std::fixed << std::setprecision(0) << times.PositionsPerSecond();
    return text.str();
}

void PrintHead(std::ostream& out, const MatchOptions& options) {
    out << "A: " << options.a->name << ", B: " << options.b->name << ". Won, drawn (cut off after "
        << options.mostTurns << " turns) and lost by A.\n"
        << "Score of A in %, and with games cut off judged by the strengths left, each with its 95 "
           "% interval.\n"
        << "Milliseconds a choice of A and of B: median/95 %/worst; and positions evaluated a "
           "second.\n"
        << "Scenario      Games     Won   Drawn    Lost               Score              Judged"
           "   Turns/game                   ms of A  Positions/s                   ms of B  "
           "Positions/s\n";
}

void PrintRow(std::ostream& out, std::string_view head, const MatchTally& tally) {
    out << std::left << std::setw(8) << head << std::right << std::setw(11) << tally.Games()
        << std::setw(8) << tally.won << std::setw(8) << tally.drawn << std::setw(8) << tally.lost
        << std::setw(20) << ShareText(tally.scores.Mean()) << std::setw(20)
        << ShareText(tally.judged.Mean()) << std::fixed << std::setprecision(2) << std::setw(13)
        << TurnsPerGame(tally);
    for (const ChoiceTimes& times : tally.times) {
        out << std::setw(26) << TimesText(times) << std::setw(13) << SpeedText(times);
    }
    out << '\n';
}

void PrintRefused(std::ostream& out, const Opponent& opponent, long refused) {
    if (refused == 0) return;
    out << "The rules refused " << refused << " plans of " << opponent.name
        << ", or a part of each.\n";
}

std::string VerdictText(const MatchTally& tally, const Opponent& a) {
    switch (VerdictAt(tally.judged.LogLikelihoodRatio())) {
        case Verdict::Better:
            return std::string(a.name) + " is better";
        case Verdict::Equal:
            return std::string(a.name) + " is not better";
        case Verdict::Open:
            break;
    }
    return "open";
}

void PrintTable(std::ostream& out, const MatchOptions& options, const MatchResult& result) {
    PrintHead(out, options);
    for (std::size_t k = 0; k < options.scenarios.size(); ++k) {
        PrintRow(out, NamesOfScenario(options.scenarios[k]).Code, result.scenarios[k]);
    }
    PrintRow(out, "all", result.all);
    PrintRefused(out, *options.a, result.all.refused[0]);
    PrintRefused(out, *options.b, result.all.refused[1]);
    if (options.sprt) {
        out << "Sequential test of 55 % against 50 %, judged: "
            << VerdictText(result.all, *options.a) << " (logarithm of the likelihood ratio "
            << result.all.judged.LogLikelihoodRatio() << ").\n";
    }
}

// ---- As an object ----

Json ShareJson(const Share& share) {
    return {{"value", share.value}, {"low", share.low}, {"high", share.high}};
}

Json PlayerJson(const MatchTally& tally, std::size_t player) {
    const ChoiceTimes& times = tally.times[player];
    return {{"refused", tally.refused[player]},
            {"msMedian", times.Quantile(0.5).count()},
            {"ms95", times.Quantile(0.95).count()},
            {"msWorst", times.Quantile(1).count()},
            {"positionsPerSecond", times.PositionsPerSecond()}};
}

Json TallyJson(std::string_view head, const MatchTally& tally) {
    return {{"scenario", head},
            {"games", tally.Games()},
            {"won", tally.won},
            {"drawn", tally.drawn},
            {"lost", tally.lost},
            {"score", ShareJson(tally.scores.Mean())},
            {"judged", ShareJson(tally.judged.Mean())},
            {"firstSide", ShareJson(tally.firstSide.Mean())},
            {"turnsPerGame", TurnsPerGame(tally)},
            {"a", PlayerJson(tally, 0)},
            {"b", PlayerJson(tally, 1)}};
}

Json ResultJson(const MatchOptions& options, const MatchResult& result) {
    Json scenarios = Json::array();
    for (std::size_t k = 0; k < options.scenarios.size(); ++k) {
        scenarios.push_back(
            TallyJson(NamesOfScenario(options.scenarios[k]).Code, result.scenarios[k]));
    }
    Json object{{"a", options.a->name},   {"b", options.b->name},
                {"seed", options.seed},   {"mostTurns", options.mostTurns},
                {"scenarios", scenarios}, {"all", TallyJson("all", result.all)}};
    if (options.sprt) {
        object["sprt"] = {{"verdict", VerdictText(result.all, *options.a)},
                          {"logLikelihoodRatio", result.all.judged.LogLikelihoodRatio()}};
    }
    return object;
}

}  // namespace

void RunMatch(const MatchOptions& options, std::ostream& out, std::ostream* progress) {
    const MatchResult result = Play(options, progress);
    if (options.json) {
        out << ResultJson(options, result).dump() << std::endl;
    } else {
        PrintTable(out, options, result);
    }
}

}  // namespace qarn
