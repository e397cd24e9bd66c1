#include "console/self_play_command.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>

namespace qarn {
namespace {

std::string FirstTwoWordsOfLines(const std::string& text) {
    std::istringstream lines(text);
    std::string heads;
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::string first;
        std::string second;
        words >> first >> second;
        heads += first + " " + second + "|";
    }
    return heads;
}

TEST(SelfPlayCommand, PrintsALineForEachScenario) {
    std::ostringstream out;
    std::ostringstream progress;
    RunSelfPlay({.games = 3, .scenarios = {8, 7}, .seed = 2}, out, &progress);
    EXPECT_EQ(FirstTwoWordsOfLines(out.str()), "Scenario Games|ER 3|HM 3|");
    EXPECT_NE(progress.str().find("\r ER: 66 % played"), std::string::npos) << progress.str();
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
