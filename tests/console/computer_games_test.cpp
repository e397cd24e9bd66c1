#include "console/match_command.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>

#include "console/options.h"
#include "console/self_play_command.h"
#include "console/words.h"
#include "support/text.h"

namespace qarn {
namespace {

Options Parse(const std::string& line) {
    std::vector<std::string> words = SplitWords(line);
    std::vector<char*> arguments;
    for (std::string& word : words) arguments.push_back(word.data());
    return ParseOptions(arguments);
}

std::string Output(const std::string& line, std::ostream* progress) {
    std::ostringstream out;
    RunMatch(Parse(line).match.value(), out, progress);
    return out.str();
}

TEST(MatchCommand, ReadsItsOptions) {
    const MatchOptions usual = Parse("--match classic random").match.value();
    EXPECT_EQ(usual.scenarios.size(), 12u);
    EXPECT_EQ(std::tuple(usual.a->name, usual.b->name, usual.seeds, usual.seed, usual.mostTurns,
                         usual.sprt, usual.json),
              std::tuple("classic", "random", 100, 1u, 200, false, false));
    const MatchOptions given =
        Parse("--seed 0 --json --turns 9 --match random classic --games 3 --scenario HM --sprt")
            .match.value();
    EXPECT_EQ(given.scenarios, std::vector{7});
    EXPECT_EQ(std::tuple(given.a->name, given.b->name, given.seeds, given.seed, given.mostTurns,
                         given.sprt, given.json),
              std::tuple("random", "classic", 3, 0u, 9, true, true));
}

TEST(MatchCommand, RefusesWhatDoesNotGoTogether) {
    const std::pair<const char*, const char*> rows[] = {
        {"--match classic nobody", "There is no opponent \"nobody\". There are: classic, "},
        {"--match classic", "The option --match needs a value."},
        {"--match classic random --selfplay 1", "Self-play and a match do not go together."},
        {"--match classic random g.tgf", "Self-play and matches open no game file."},
        {"--match classic random --scenario XX", "There is no scenario \"XX\"."},
        {"--match classic random --turns 0",
         "\"0\" should be a whole number from 1 to 9223372036854775807."},
        {"--selfplay 1 --games 2", "The options --games, --turns and --sprt go with --match."},
        {"--sprt", "The options --games, --turns and --sprt go with --match."},
        {"--seed 1", "The options --scenario and --seed go with --selfplay or --match."},
    };
    for (const auto& [line, reason] : rows) {
        const std::string refusal = ErrorOf<Refusal>([&, &line = line] { Parse(line); });
        EXPECT_TRUE(refusal.starts_with(reason)) << line << ": " << refusal;
    }
}

TEST(MatchCommand, PrintsALineForEachScenarioAndForAll) {
    std::ostringstream progress;
    const std::string text =
        Output("--match random random --games 2 --turns 5 --scenario HM --sprt", &progress);
    for (const char* part :
         {"A: random, B: random. Won, drawn (cut off after 5 turns)",
          "\nHM                4       0       4       0     50.0 (1.0-99.0)",
          "\nall               4       0       4       0", "         5.00  ", "judged: open ("}) {
        EXPECT_TRUE(Has(text, part));
    }
    EXPECT_FALSE(Has(text, "refused"));
    EXPECT_TRUE(Has(progress.str(), "\rmatch: 50 % played"));
}

TEST(MatchCommand, EndsEarlyWithAVerdict) {
    const auto verdict = [](const std::string& players) {
        const std::string text =
            Output("--match " + players + " --scenario ER --games 60 --sprt --json", nullptr);
        const nlohmann::json object = nlohmann::json::parse(text);
        EXPECT_LT(object["all"]["games"], 120);
        return object["sprt"]["verdict"];
    };
    EXPECT_EQ(verdict("scout random"), "scout is better");
    EXPECT_EQ(verdict("random scout"), "random is not better");
}

TEST(MatchCommand, PrintsOneJsonObject) {
    const std::string text = Output("--match classic random --games 2 --turns 7 --json", nullptr);
    const nlohmann::json object = nlohmann::json::parse(text);
    EXPECT_EQ(text.find('\n'), text.size() - 1);
    EXPECT_EQ(object["a"], "classic");
    EXPECT_EQ(object["scenarios"].size(), 12u);
    EXPECT_EQ(object["scenarios"][6]["scenario"], "HM");
    const nlohmann::json& all = object["all"];
    EXPECT_EQ(all["games"], 48);
    EXPECT_EQ(all["won"].get<int>() + all["drawn"].get<int>() + all["lost"].get<int>(), 48);
    EXPECT_LE(all["judged"]["low"], all["judged"]["value"]);
    EXPECT_LE(all["a"]["msMedian"], all["a"]["msWorst"]);
    EXPECT_EQ(all["b"]["refused"], 0);
    EXPECT_FALSE(object.contains("sprt"));
}

// ---- Self-play ----

TEST(SelfPlayCommand, PrintsALineForEachScenario) {
    std::ostringstream out, progress;
    RunSelfPlay({.games = 3, .scenarios = {8, 7}, .seed = 2}, out, &progress);
    const std::string text = out.str();
    EXPECT_TRUE(text.starts_with("Scenario      Games ") && Has(text, "\nHM                3 "));
    EXPECT_LT(text.find("\nER                3 "), text.find("\nHM ")) << text;
    EXPECT_TRUE(Has(progress.str(), "\r ER: 66 % played"));
}

TEST(SelfPlayCommand, PrintsOneJsonObject) {
    std::ostringstream out;
    RunSelfPlay({.games = 3, .scenarios = {8}, .seed = 2, .json = true}, out, nullptr);
    const nlohmann::json object = nlohmann::json::parse(out.str());
    const nlohmann::json& result = object["scenarios"].at(0);
    EXPECT_EQ(object["seed"], 2);
    EXPECT_EQ(result["scenario"], "ER");
    EXPECT_EQ(result["games"], 3);
    EXPECT_DOUBLE_EQ(result["turnsPerGame"].get<double>(), result["turns"].get<double>() / 3);
    EXPECT_EQ(out.str().find('\n'), out.str().size() - 1);
}

}  // namespace
}  // namespace qarn
